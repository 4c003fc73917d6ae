#include "extract/ControlText.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "accessibility/MyAccessible.h"
#include "extract/StringUtilities.h"
#include "extract/Win32API_Window.h"
#include "platform/WindowEnumeration.h"

namespace extract {
namespace {

// The visible top-level windows whose class name contains classPart, sorted by handle.
std::vector<HWND> VisibleTopLevelWindows(std::wstring_view classPart) {
  std::vector<HWND> found;
  platform::ForEachWindow([&](HWND hwnd) {
    if (IsWindowVisible(hwnd) &&
        ContainsIgnoringCase(Win32API_Window::MyGetClassName(hwnd), classPart)) {
      found.push_back(hwnd);
    }
  });
  std::ranges::sort(found);
  return found;
}

constexpr std::wstring_view kTooltipClasses[] = {L"tooltip", L"vbbubblert6"};

}  // namespace

std::wstring MyGetControlText(HWND hwnd) {
  const std::wstring name = MyAccessible::AccNameOfWindow(hwnd);
  return name.empty() ? Win32API_Window::WindowTextByMessage(hwnd) : name;
}

Method MyGetEditItem(HWND hwnd, platform::ItemSink& sink) {
  const std::wstring text = Win32API_Window::WindowTextByMessage(hwnd);
  if (text.empty()) return {};
  sink.Text(text);
  return L"WM_GETTEXT";
}

Method GetChildText(HWND hwnd, platform::ItemSink& sink) {
  // No line end after it. Odd, and stays: docs/ODDITIES.md.
  sink.Text(MyGetControlText(hwnd));
  for (HWND child = GetWindow(hwnd, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    const std::wstring text = MyGetControlText(child);
    if (!text.empty()) PutItem(sink, text);
  }
  // Whichever call gave the texts. Odd, and stays: docs/ODDITIES.md.
  return kByAccessibleObject;
}

Method GetOther(HWND hwnd, const ChildrenListing& listing, platform::ItemSink& sink) {
  // Also the mark of a failed listing: the user should see it.
  listing(sink);
  return sink.Size() == 0 ? GetChildText(hwnd, sink) : kByAccessibleObject;
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
