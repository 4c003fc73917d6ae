#include "extract/Win32API_Window.h"

#include <algorithm>

#include "extract/StringUtilities.h"

namespace Win32API_Window {
namespace {

constexpr int kClassNameLength = 128;
// Captions and texts have different sizes. Odd, and stays: docs/ODDITIES.md.
constexpr int kCaptionLength = 9192;
constexpr std::size_t kLongestText = 1U << 26;

// May occur in a caption. Odd, and stays: docs/ODDITIES.md.
constexpr std::wstring_view kLineFeedMark = L"%!LF!%";

// size: characters, the zero character included.
std::wstring TextOfSize(HWND hwnd, std::size_t size) {
  std::wstring buffer(size, L'\0');
  const LRESULT copied =
      SendMessageW(hwnd, WM_GETTEXT, size, reinterpret_cast<LPARAM>(buffer.data()));
  // A window that copied nothing need not have ended the text either: then the buffer comes from
  // its process with whatever was there.
  return copied == 0 ? std::wstring() : extract::UpToNul(buffer);
}

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

std::wstring WindowTextByMessage(HWND hwnd) { return TextOfSize(hwnd, kMostText + 1); }

std::size_t WindowTextLength(HWND hwnd) {
  const LRESULT length = SendMessageW(hwnd, WM_GETTEXTLENGTH, 0, 0);
  return length > 0 ? static_cast<std::size_t>(length) : 0;
}

std::wstring WholeWindowText(HWND hwnd) {
  return TextOfSize(hwnd, std::clamp(WindowTextLength(hwnd), kMostText, kLongestText) + 1);
}

std::wstring StoredWindowText(HWND hwnd) {
  std::wstring buffer(kCaptionLength, L'\0');
  InternalGetWindowText(hwnd, buffer.data(), kCaptionLength);
  return extract::WithCrLf(extract::UpToNul(buffer), kLineFeedMark);
}

BOOL SetTopMost(HWND hwnd) {
  return SetWindowPos(hwnd, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

BOOL SetNoTopMost(HWND hwnd) {
  return SetWindowPos(hwnd, HWND_NOTOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

}  // namespace Win32API_Window
