#include "accessibility/AccessibleListing.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "accessibility/ChildWalk.h"
#include "accessibility/ListingProgress.h"
#include "settings/ConfigText.h"

namespace MyAccessible {
namespace {

constexpr std::wstring_view kCrLf = L"\r\n";
constexpr std::wstring_view kCutMark = L".......";

// The limits below keep an object that never ends from holding the program for ever.
constexpr std::int32_t kDeepest = 64;
constexpr std::int32_t kMostNameless = 1'000;
constexpr std::int32_t kMostTreeItems = 65'536;

constexpr int kMostStepsBack = 20;

class Children {
 public:
  Children(const settings::Settings& settings, const platform::ReadSession& session)
      : settings_(settings), progress_(session) {}

  std::wstring List(IAccessible* object) {
    ListBelow(object, 0);
    return std::move(text_);
  }

 private:
  // False once the whole listing has ended.
  bool ListBelow(IAccessible* object, std::int32_t depth) {
    if (depth == kDeepest) return true;
    ChildWalk walk(object, settings_.parentChildrenMax - listed_);
    while (const VARIANT* const child = walk.Next()) {
      if (progress_.Interrupted()) return EndWith(platform::kInterrupted);
      if (listed_ >= settings_.parentChildrenMax || nameless_ >= kMostNameless) {
        return EndWith(std::wstring(kRestOmitted).append(kCrLf));
      }
      const AccessiblePtr held = ObjectIn(*child);
      Add(held ? AccName(held.Get(), Self()) : AccName(object, *child));
      progress_.Step(listed_);
      if (held && !ListBelow(held.Get(), depth + 1)) return false;
    }
    return true;
  }

  void Add(const std::wstring& name) {
    if (name.empty()) {
      ++nameless_;
      return;
    }
    text_.append(ShortName(name, settings_.accnameMax)).append(kCrLf);
    ++listed_;
  }

  bool EndWith(std::wstring_view line) {
    text_ += line;
    return false;
  }

  const settings::Settings& settings_;
  const ListingProgress progress_;
  std::wstring text_;
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
  // The neighbour's number counts in the object that holds them both.
  AccessiblePtr holder = IsSelf(item.child.Get()) ? AccParent(item.object.Get()) : item.object;
  if (!holder) return false;
  Place(item, std::move(holder), end.Get().lVal);
  return true;
}

// A tree item's value is its level.
std::int32_t Level(const ObjectAndChild& item) {
  return settings::LeadingNumber(AccValue(item.object.Get(), item.child.Get()));
}

}  // namespace

std::wstring ShortName(std::wstring_view name, std::int32_t accnameMax) {
  const std::size_t most = static_cast<std::size_t>(std::max(accnameMax, 0));
  if (name.size() <= most) return std::wstring(name);
  return std::wstring(name.substr(0, most)).append(kCutMark);
}

std::wstring ListChildren(HWND hwnd, const settings::Settings& settings,
                          const platform::ReadSession& session) {
  const AccessiblePtr object = GetAccessibleObj(hwnd);
  if (!object) return std::wstring(kNoObject);
  return ListChildrenOf(object.Get(), settings, session);
}

std::wstring ListChildrenOf(IAccessible* object, const settings::Settings& settings,
                            const platform::ReadSession& session) {
  return Children(settings, session).List(object);
}

std::wstring ListTree(HWND hwnd, POINT point, const settings::Settings& settings,
                      const platform::ReadSession& session) {
  ObjectAndChild found;
  if (!GetAccessibleObjAt(point, found)) return std::wstring(kNoObject);
  if (GetObjectType(found.object.Get(), found.child.Get()) == L"Container") {
    return ListChildren(hwnd, settings, session);
  }
  return ListTreeAround(found, settings, session);
}

std::wstring ListTreeAround(const ObjectAndChild& item, const settings::Settings& settings,
                            const platform::ReadSession& session) {
  const ListingProgress progress(session);
  ObjectAndChild at;
  Place(at, item.object, ChildId(item.child.Get()));
  for (int step = 0; step < kMostStepsBack && Move(at, NAVDIR_PREVIOUS); ++step) {
  }

  const std::int64_t firstLevel = Level(at);
  std::wstring text;
  std::int32_t listed = 0;
  do {
    if (progress.Interrupted() || listed == kMostTreeItems) {
      return text.append(platform::kInterrupted);
    }
    if (settings.treeviewIndent == 1) {
      const std::int64_t deeper = Level(at) - firstLevel;
      text.append(static_cast<std::size_t>(std::clamp<std::int64_t>(deeper, 0, kDeepest)), L'\t');
    }
    text.append(ShortName(AccName(at.object.Get(), at.child.Get()), settings.accnameMax))
        .append(kCrLf);
    progress.Step(++listed);
  } while (Move(at, NAVDIR_NEXT));
  return text;
}

}  // namespace MyAccessible
