// The text of the status bar that belongs to a window.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace capture {

// The windows that are searched. Tests put their own in place.
class StatusWindows {
 public:
  virtual ~StatusWindows() = default;

  virtual HWND TopParent(HWND hwnd) = 0;
  virtual HWND Foreground() = 0;
  // All windows below root whose class name equals className.
  virtual std::vector<HWND> Descendants(HWND root, std::wstring_view className) = 0;
  virtual std::wstring Title(HWND hwnd) = 0;
  virtual std::wstring Text(HWND hwnd) = 0;
};

// The text of the one status bar under the target's top-level window; when there is not exactly
// one, of the one under the foreground window; when there is not exactly one there either, of the
// one under its tab window that bears the target's title. A pop-up menu has no window around it, so
// with one the search starts at the foreground window.
std::wstring FindStatusText(StatusWindows& windows, HWND target, std::wstring_view className,
                            std::wstring_view title);

}  // namespace capture
