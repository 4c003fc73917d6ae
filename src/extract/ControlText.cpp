#include "extract/ControlText.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "accessibility/MyAccessible.h"
#include "extract/StringUtilities.h"
#include "extract/Win32API_Window.h"

namespace extract {
namespace {

struct WindowSearch {
  std::wstring_view classPart;
  std::vector<HWND> found;
};

BOOL CALLBACK CollectIfVisible(HWND hwnd, LPARAM context) noexcept {
  auto& search = *reinterpret_cast<WindowSearch*>(context);
  if (IsWindowVisible(hwnd) &&
      ContainsIgnoringCase(Win32API_Window::MyGetClassName(hwnd), search.classPart)) {
    search.found.push_back(hwnd);
  }
  return TRUE;
}

// The visible top-level windows whose class name contains classPart, sorted by handle.
std::vector<HWND> VisibleTopLevelWindows(std::wstring_view classPart) {
  WindowSearch search{classPart, {}};
  EnumWindows(CollectIfVisible, reinterpret_cast<LPARAM>(&search));
  std::ranges::sort(search.found);
  return search.found;
}

constexpr std::wstring_view kTooltipClasses[] = {L"tooltip", L"vbbubblert6"};

}  // namespace

std::wstring MyGetControlText(HWND hwnd) {
  if (const auto object = MyAccessible::GetAccessibleObj(hwnd)) {
    const platform::UniqueVariant self(CHILDID_SELF);
    const std::wstring name = MyAccessible::AccName(object.Get(), self.Get());
    if (!name.empty()) return name;
  }
  return Win32API_Window::WindowTextByMessage(hwnd);
}

HWND GethWndTooltips() {
  for (const std::wstring_view classPart : kTooltipClasses) {
    const std::vector<HWND> windows = VisibleTopLevelWindows(classPart);
    if (!windows.empty()) return windows.front();
  }
  return nullptr;
}

std::wstring GetTooltipText() {
  const HWND tooltip = GethWndTooltips();
  return tooltip == nullptr ? std::wstring() : MyGetControlText(tooltip);
}

}  // namespace extract
