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
  const std::wstring name = MyAccessible::AccNameOfWindow(hwnd);
  return name.empty() ? Win32API_Window::WindowTextByMessage(hwnd) : name;
}

std::wstring MyGetEditItem(HWND hwnd, std::wstring& method) {
  const std::wstring text = Win32API_Window::WindowTextByMessage(hwnd);
  if (!text.empty()) method = L"WM_GETTEXT";
  return text;
}

std::wstring GetChildText(HWND hwnd, std::wstring& method) {
  std::wstring result = MyGetControlText(hwnd);
  for (HWND child = GetWindow(hwnd, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    const std::wstring text = MyGetControlText(child);
    if (!text.empty()) result += text + L"\r\n";
  }
  method = L"Accessible";
  return result;
}

std::wstring GetOther(HWND hwnd, const ChildrenListing& listing, std::wstring& method) {
  // Also when it says that it failed: that is what the user sees then.
  std::wstring names = listing(hwnd);
  if (names.empty()) return GetChildText(hwnd, method);
  method = L"Accessible";
  return names;
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
