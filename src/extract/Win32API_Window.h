// Window primitives: class, caption, parents and the topmost band. Nothing here throws; after a
// failure the result is usually empty.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>

namespace Win32API_Window {

// The last window of the GetParent chain (owners included: odd, and stays: docs/ODDITIES.md); hwnd
// itself when it has no parent.
HWND GetTopParent(HWND hwnd);

// The class name; empty when the window is gone.
std::wstring MyGetClassName(HWND hwnd);

// The caption, up to 9191 characters, a lone LF turned into CR LF. For a control of another process
// the system returns only what it stores itself, which is empty for most.
std::wstring MyGetWindowText(HWND hwnd);

// The text that the window answers WM_GETTEXT with, up to kMostText characters. Waits until the
// window answers.
constexpr std::size_t kMostText = 4095;
std::wstring WindowTextByMessage(HWND hwnd);

// The whole of that text, as long as the window says, up to 64 Mi characters.
std::wstring WholeWindowText(HWND hwnd);

// The characters of that text, as the window says; 0 when it does not say.
std::size_t WindowTextLength(HWND hwnd);

// The caption that the system stores for the window, which it gives without asking the window.
std::wstring StoredWindowText(HWND hwnd);

// Put the window into or out of the topmost band; return SetWindowPos's result.
BOOL SetTopMost(HWND hwnd);
BOOL SetNoTopMost(HWND hwnd);

}  // namespace Win32API_Window
