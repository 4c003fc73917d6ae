#include "accessibility/AccessibleListing.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "accessibility/ChildWalk.h"
#include "platform/NumberText.h"

namespace MyAccessible {
namespace {

constexpr std::wstring_view kCutMark = L".......";

// Limits for objects that have no end.
constexpr std::int32_t kDeepest = 64;
constexpr std::int32_t kMostNameless = 1'000;
constexpr std::int32_t kMostTreeItems = 65'536;

constexpr int kMostStepsBack = 20;

bool MayGoOn(const platform::ReadSession& session) {
  return session.GoesOn(platform::ReadUntil::kCaptureEnds);
}

class Children {
 public:
  Children(const settings::Settings& settings, const platform::ReadSession& session,
           platform::ItemSink& sink)
      : settings_(settings), session_(session), sink_(sink) {}

  void List(IAccessible* object) { ListBelow(object, 0); }

 private:
  // False once the whole listing has ended.
  bool ListBelow(IAccessible* object, std::int32_t depth) {
    if (depth == kDeepest) return true;
    ChildWalk walk(object, settings_.parentChildrenMax - listed_);
    while (const VARIANT* const child = walk.Next()) {
      if (!MayGoOn(session_)) return EndWith(platform::Ending::kInterrupted);
      // When no child has a name the listing stays empty, so that the caller can use another
      // reader.
      if (nameless_ >= kMostNameless && listed_ == 0) return false;
      if (listed_ >= settings_.parentChildrenMax || nameless_ >= kMostNameless) {
        return EndWith(platform::Ending::kRestOmitted);
      }
      const AccessiblePtr held = ObjectIn(*child);
      Add(held ? AccName(held.Get(), Self()) : AccName(object, *child));
      session_.Step(std::to_wstring(listed_));
      if (held && !ListBelow(held.Get(), depth + 1)) return false;
    }
    return true;
  }

  void Add(const std::wstring& name) {
    if (name.empty()) {
      ++nameless_;
      return;
    }
    PutItem(sink_, ShortName(name, settings_.accnameMax));
    ++listed_;
  }

  bool EndWith(platform::Ending ending) {
    sink_.EndWith(ending);
    return false;
  }

  const settings::Settings& settings_;
  const platform::ReadSession& session_;
  platform::ItemSink& sink_;
  std::int32_t listed_ = 0;
  std::int32_t nameless_ = 0;
};

void Place(ObjectAndChild& item, AccessiblePtr object, LONG child) {
  item.object = std::move(object);
  VARIANT* const number = item.child.Receive();
  number->vt = VT_I4;
  number->lVal = child;
}

// Moves to the neighbour in that direction; false when there is none.
bool Move(ObjectAndChild& item, long direction) {
  platform::UniqueVariant end;
  if (FAILED(item.object->accNavigate(direction, item.child.Get(), end.Receive()))) return false;
  if (AccessiblePtr held = ObjectIn(end.Get())) {
    Place(item, std::move(held), CHILDID_SELF);
    return true;
  }
  if (end.Get().vt != VT_I4 || IsSelf(end.Get())) return false;
  // The neighbour's number refers to the object that holds both.
  AccessiblePtr holder = IsSelf(item.child.Get()) ? AccParent(item.object.Get()) : item.object;
  if (!holder) return false;
  Place(item, std::move(holder), end.Get().lVal);
  return true;
}

// A tree item's value is its level.
std::int32_t Level(const ObjectAndChild& item) {
  return platform::LeadingNumber(AccValue(item.object.Get(), item.child.Get()));
}

}  // namespace

std::wstring ShortName(std::wstring_view name, std::int32_t accnameMax) {
  const std::size_t most = static_cast<std::size_t>(std::max(accnameMax, 0));
  if (name.size() <= most) return std::wstring(name);
  return std::wstring(name.substr(0, most)).append(kCutMark);
}

void ListChildren(HWND hwnd, const settings::Settings& settings,
                  const platform::ReadSession& session, platform::ItemSink& sink) {
  const AccessiblePtr object = GetAccessibleObj(hwnd);
  if (!object) return sink.EndWith(platform::Ending::kNoObject);
  ListChildrenOf(object.Get(), settings, session, sink);
}

void ListChildrenOf(IAccessible* object, const settings::Settings& settings,
                    const platform::ReadSession& session, platform::ItemSink& sink) {
  Children(settings, session, sink).List(object);
}

void ListTree(HWND hwnd, const platform::ReadPoint& point, const settings::Settings& settings,
              const platform::ReadSession& session, platform::ItemSink& sink) {
  ObjectAndChild found;
  if (!GetAccessibleObjAt(point, found)) return sink.EndWith(platform::Ending::kNoObject);
  if (GetObjectType(found.object.Get(), found.child.Get()) == L"Container") {
    ListChildren(hwnd, settings, session, sink);
  } else {
    ListTreeAround(found, settings, session, sink);
  }
}

void ListTreeAround(const ObjectAndChild& item, const settings::Settings& settings,
                    const platform::ReadSession& session, platform::ItemSink& sink) {
  ObjectAndChild at;
  Place(at, item.object, ChildId(item.child.Get()));
  for (int step = 0; step < kMostStepsBack && Move(at, NAVDIR_PREVIOUS); ++step) {
  }

  const std::int64_t firstLevel = Level(at);
  std::int32_t listed = 0;
  do {
    if (!MayGoOn(session) || listed == kMostTreeItems) {
      return sink.EndWith(platform::Ending::kInterrupted);
    }
    if (settings.treeviewIndent == 1) {
      const std::int64_t deeper = Level(at) - firstLevel;
      for (std::int64_t i = std::min<std::int64_t>(deeper, kDeepest); i > 0; --i) sink.Cell({});
    }
    PutItem(sink, ShortName(AccName(at.object.Get(), at.child.Get()), settings.accnameMax));
    session.Step(std::to_wstring(++listed));
  } while (Move(at, NAVDIR_NEXT));
}

}  // namespace MyAccessible
