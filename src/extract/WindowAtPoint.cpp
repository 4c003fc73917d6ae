#include "extract/WindowAtPoint.h"

#include <array>
#include <cstdint>
#include <vector>

#include "extract/StringUtilities.h"

namespace extract {
namespace {

constexpr int kDeepest = 64;  // windows can be nested deeper only in hostile programs

// A button of that style, in whatever class: other toolkits register the system's button under
// names of their own.
bool IsGroupBox(HWND hwnd) {
  const LONG_PTR style = GetWindowLongPtrW(hwnd, GWL_STYLE);
  if ((style & (WS_CHILD | BS_TYPEMASK)) != (WS_CHILD | BS_GROUPBOX)) return false;
  std::array<wchar_t, 128> name{};  // stays empty when the window is gone
  RealGetWindowClassW(hwnd, name.data(), static_cast<UINT>(name.size()));
  return ContainsIgnoringCase(name.data(), L"button");
}

std::vector<WindowThere> ChildrenAt(HWND parent, POINT point) {
  std::vector<WindowThere> children;
  for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    RECT place{};
    if (!IsWindowVisible(child) || !GetWindowRect(child, &place) || !PtInRect(&place, point)) {
      continue;
    }
    children.push_back({child, place, IsWindowEnabled(child) != FALSE, IsGroupBox(child)});
  }
  return children;
}

// Quicker than ChildrenAt, because it is asked at every move of the pointer.
bool HasVisibleChildAt(HWND hwnd, POINT point) {
  POINT inside = point;
  ScreenToClient(hwnd, &inside);
  const HWND child = ChildWindowFromPointEx(hwnd, inside, CWP_SKIPINVISIBLE);
  return child != nullptr && child != hwnd;
}

HWND Innermost(HWND hwnd, POINT point) {
  for (int i = 0; i < kDeepest && HasVisibleChildAt(hwnd, point); ++i) {
    const HWND child = ChildMeant(ChildrenAt(hwnd, point));
    if (child == nullptr) break;
    hwnd = child;
  }
  return hwnd;
}

std::int64_t Area(const RECT& place) {
  return (std::int64_t{place.right} - place.left) * (std::int64_t{place.bottom} - place.top);
}

bool Encloses(const RECT& outer, const RECT& inner) {
  return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
         outer.bottom >= inner.bottom;
}

}  // namespace

HWND FramedWindow(const RECT& frame, std::span<const WindowThere> siblings) {
  const WindowThere* smallest = nullptr;
  for (const WindowThere& sibling : siblings) {
    if (sibling.groupBox || Encloses(sibling.place, frame)) continue;
    if (smallest == nullptr || Area(sibling.place) < Area(smallest->place)) smallest = &sibling;
  }
  return smallest == nullptr ? nullptr : smallest->hwnd;
}

HWND ChildMeant(std::span<const WindowThere> children) {
  if (children.empty()) return nullptr;
  const WindowThere& topmost = children.front();
  if (!topmost.groupBox) return topmost.hwnd;
  const HWND framed = FramedWindow(topmost.place, children);
  return framed == nullptr ? topmost.hwnd : framed;
}

HWND DisabledChild(std::span<const WindowThere> children) {
  return children.empty() || children.front().enabled ? nullptr : ChildMeant(children);
}

HWND WindowMeant(HWND given, POINT point) {
  // The children of the desktop are other programs' windows.
  if (given == nullptr || given == GetDesktopWindow()) return given;
  HWND meant = nullptr;
  if (HasVisibleChildAt(given, point)) meant = DisabledChild(ChildrenAt(given, point));
  if (meant == nullptr && IsGroupBox(given)) {
    RECT frame{};
    GetWindowRect(given, &frame);
    meant = FramedWindow(frame, ChildrenAt(GetAncestor(given, GA_PARENT), point));
  }
  return meant == nullptr ? given : Innermost(meant, point);
}

}  // namespace extract
