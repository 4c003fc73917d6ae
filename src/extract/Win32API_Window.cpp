#include "extract/Win32API_Window.h"

#include "extract/StringUtilities.h"

namespace Win32API_Window {
namespace {

constexpr int kClassNameLength = 128;
// Captions and texts have different sizes. Odd, and stays: docs/ODDITIES.md.
constexpr int kCaptionLength = 9192;
constexpr int kTextLength = 4096;

// May occur in a caption. Odd, and stays: docs/ODDITIES.md.
constexpr std::wstring_view kLineFeedMark = L"%!LF!%";

}  // namespace

HWND GetTopParent(HWND hwnd) {
  for (HWND parent = GetParent(hwnd); parent != nullptr; parent = GetParent(hwnd)) hwnd = parent;
  return hwnd;
}

std::wstring MyGetClassName(HWND hwnd) {
  std::wstring buffer(kClassNameLength, L'\0');
  GetClassNameW(hwnd, buffer.data(), kClassNameLength);
  return extract::UpToNul(buffer);
}

std::wstring MyGetWindowText(HWND hwnd) {
  std::wstring buffer(kCaptionLength, L'\0');
  GetWindowTextW(hwnd, buffer.data(), kCaptionLength);
  return extract::WithCrLf(extract::UpToNul(buffer), kLineFeedMark);
}

std::wstring WindowTextByMessage(HWND hwnd) {
  std::wstring buffer(kTextLength, L'\0');
  SendMessageW(hwnd, WM_GETTEXT, kTextLength, reinterpret_cast<LPARAM>(buffer.data()));
  return extract::UpToNul(buffer);
}

BOOL SetTopMost(HWND hwnd) {
  return SetWindowPos(hwnd, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

BOOL SetNoTopMost(HWND hwnd) {
  return SetWindowPos(hwnd, HWND_NOTOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

}  // namespace Win32API_Window
