#include "capture/StatusText.h"

namespace capture {
namespace {

constexpr std::wstring_view kStatusBar = L"msctls_statusbar32";
constexpr std::wstring_view kTabWindow = L"TabWindowClass";
constexpr std::wstring_view kPopupMenu = L"#32768";

// The one status bar under root; null when there is none or more than one.
HWND OnlyStatusBar(StatusWindows& windows, HWND root) {
  if (root == nullptr) return nullptr;
  const std::vector<HWND> bars = windows.Descendants(root, kStatusBar);
  return bars.size() == 1 ? bars.front() : nullptr;
}

HWND StatusBarOfTab(StatusWindows& windows, HWND foreground, std::wstring_view title) {
  if (foreground == nullptr) return nullptr;
  for (const HWND tab : windows.Descendants(foreground, kTabWindow)) {
    if (windows.Title(tab) == title) return OnlyStatusBar(windows, tab);
  }
  return nullptr;
}

}  // namespace

std::wstring FindStatusText(StatusWindows& windows, HWND target, std::wstring_view className,
                            std::wstring_view title) {
  HWND bar = className == kPopupMenu ? nullptr : OnlyStatusBar(windows, windows.TopParent(target));
  if (bar == nullptr) bar = OnlyStatusBar(windows, windows.Foreground());
  if (bar == nullptr) bar = StatusBarOfTab(windows, windows.Foreground(), title);
  return bar == nullptr ? std::wstring() : windows.Text(bar);
}

}  // namespace capture
