#include "extract/ControlText.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "accessibility/MyAccessible.h"
#include "extract/StringUtilities.h"
#include "extract/Win32API_Window.h"
#include "platform/SecondSink.h"
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

constexpr Method kByMessage = L"WM_GETTEXT";

constexpr std::wstring_view kTooltipClasses[] = {L"tooltip", L"vbbubblert6"};

}  // namespace

std::wstring MyGetControlText(HWND hwnd) {
  const std::wstring name = MyAccessible::AccNameOfWindow(hwnd);
  return name.empty() ? Win32API_Window::WindowTextByMessage(hwnd) : name;
}

TextReading ReadWindowText(HWND hwnd, bool whole) {
  std::wstring text =
      whole ? Win32API_Window::WholeWindowText(hwnd) : Win32API_Window::WindowTextByMessage(hwnd);
  if (text.empty()) return {};
  TextReading reading{std::move(text), std::wstring(kByMessage)};
  if (!whole && reading.text.size() == Win32API_Window::kMostText) {
    const std::size_t length = Win32API_Window::WindowTextLength(hwnd);
    if (length > reading.text.size()) reading.whole = length;
  }
  return reading;
}

Method MyGetEditItem(HWND hwnd, platform::ItemSink& sink, bool whole) {
  const TextReading reading = ReadWindowText(hwnd, whole);
  if (reading.text.empty()) return {};
  sink.Text(reading.text);
  if (reading.whole != 0) sink.IsStartOf(reading.whole);
  return kByMessage;
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

Method GetOther(HWND hwnd, const ChildrenListing& listing, const FurtherWay& further,
                platform::ItemSink& sink) {
  listing(sink);
  if (further && !sink.HasText()) {
    platform::SecondSink second(sink);
    const Method method = further(second);
    if (second.HasText()) return method;
  }
  // Also the mark of a failed listing: the user should see it.
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
  return tooltip == nullptr || IsHungAppWindow(tooltip) ? std::wstring()
                                                        : MyGetControlText(tooltip);
}

}  // namespace extract
