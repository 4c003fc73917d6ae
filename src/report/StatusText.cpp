#include "report/StatusText.h"

#include <string_view>
#include <vector>

#include "extract/ControlText.h"
#include "extract/Win32API_Window.h"
#include "platform/WindowEnumeration.h"

namespace report {
namespace {

constexpr std::wstring_view kStatusBar = L"msctls_statusbar32";
constexpr std::wstring_view kTabWindow = L"TabWindowClass";
constexpr std::wstring_view kPopupMenu = L"#32768";

std::vector<HWND> Descendants(HWND root, std::wstring_view className) {
  std::vector<HWND> found;
  platform::ForEachWindow(root, [&](HWND hwnd) {
    if (Win32API_Window::MyGetClassName(hwnd) == className) found.push_back(hwnd);
  });
  return found;
}

// The one status bar under root; null when there is none or more than one.
HWND OnlyStatusBar(HWND root) {
  const std::vector<HWND> bars = Descendants(root, kStatusBar);
  return bars.size() == 1 ? bars.front() : nullptr;
}

HWND StatusBarOfTab(HWND foreground, std::wstring_view title) {
  for (const HWND tab : Descendants(foreground, kTabWindow)) {
    if (Win32API_Window::MyGetWindowText(tab) == title) return OnlyStatusBar(tab);
  }
  return nullptr;
}

}  // namespace

std::wstring FindStatusText(const WindowFacts& window) {
  HWND bar = nullptr;
  if (window.className != kPopupMenu) {
    bar = OnlyStatusBar(Win32API_Window::GetTopParent(window.hwnd));
  }
  const HWND foreground = GetForegroundWindow();
  if (bar == nullptr) bar = OnlyStatusBar(foreground);
  if (bar == nullptr) bar = StatusBarOfTab(foreground, window.title);
  return bar == nullptr || IsHungAppWindow(bar) ? std::wstring() : extract::MyGetControlText(bar);
}

}  // namespace report
