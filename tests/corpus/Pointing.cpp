#include "Pointing.h"

#include <algorithm>
#include <vector>

#include "WindowTexts.h"
#include "driver/Control.h"
#include "extract/WindowAtPoint.h"

namespace corpus {
namespace {

constexpr LONG kPointsInARow = 24;

// Pixels from the first to the last one before the end.
std::vector<LONG> Spread(LONG first, LONG end) {
  std::vector<LONG> pixels;
  const LONG step = std::max<LONG>((end - first) / kPointsInARow, 1);
  for (LONG pixel = first; pixel < end; pixel += step) pixels.push_back(pixel);
  pixels.push_back(end - 1);
  return pixels;
}

// What of the window is inside its parents and on the screen, in screen pixels.
RECT PlaceOf(HWND window) {
  RECT place{};
  GetWindowRect(window, &place);
  const RECT screen{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
  IntersectRect(&place, &place, &screen);
  for (HWND parent = GetAncestor(window, GA_PARENT);
       parent != nullptr && parent != GetDesktopWindow(); parent = GetAncestor(parent, GA_PARENT)) {
    RECT inside{};
    GetClientRect(parent, &inside);
    MapWindowPoints(parent, nullptr, reinterpret_cast<POINT*>(&inside), 2);
    IntersectRect(&place, &place, &inside);
  }
  return place;
}

// Whether other is a label without a text: its siblings show through it, or are painted over it.
bool IsLabelOver(HWND other, HWND window) {
  return GetParent(other) == GetParent(window) && gui::Control(other, "").ClassName() == "Static" &&
         TextsOf(other).caption.empty();
}

bool Covers(HWND other, HWND window, POINT point) {
  RECT place{};
  GetWindowRect(other, &place);
  return IsWindowVisible(other) && PtInRect(&place, point) && !IsChild(other, window);
}

class Search {
 public:
  explicit Search(HWND window) : window_(window) {}

  // Whether the window is meant at the point.
  bool Try(POINT point) {
    const HWND given = WindowFromPoint(point);
    const HWND meant = extract::WindowMeant(given, point);
    if (meant == window_) {
      result_.point = platform::ReadPoint{point, meant == given ? nullptr : meant};
      return true;
    }
    Note(meant, point);
    return false;
  }

  Pointed Result() {
    if (!result_.point) {
      result_.hindrance = result_.met != nullptr ? Hindrance::kUnknown
                          : covered_             ? Hindrance::kCovered
                          : underLabel_          ? Hindrance::kUnderLabel
                                                 : Hindrance::kItsParts;
    }
    return result_;
  }

 private:
  void Note(HWND met, POINT point) {
    if (IsChild(window_, met)) return;
    if (!Covers(met, window_, point)) {
      result_.met = met;
    } else if (IsLabelOver(met, window_)) {
      underLabel_ = true;
    } else {
      covered_ = true;
    }
  }

  HWND window_;
  Pointed result_;
  bool covered_ = false;
  bool underLabel_ = false;
};

}  // namespace

Pointed PointAt(HWND window) {
  const RECT place = PlaceOf(window);
  if (IsRectEmpty(&place)) return {.point = {}, .hindrance = Hindrance::kNoPlace};
  Search search(window);
  if (search.Try({(place.left + place.right) / 2, (place.top + place.bottom) / 2})) {
    return search.Result();
  }
  for (const LONG y : Spread(place.top, place.bottom)) {
    for (const LONG x : Spread(place.left, place.right)) {
      if (search.Try({x, y})) return search.Result();
    }
  }
  return search.Result();
}

}  // namespace corpus
