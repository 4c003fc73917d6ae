// Window primitives: class, caption, parents and the topmost band. None of them raises; after a
// failure each returns what it had, usually nothing.
#pragma once

#include <windows.h>

#include <string>

namespace Win32API_Window {

// The last window of the GetParent chain (owners included); hwnd itself when it has no parent.
HWND GetTopParent(HWND hwnd);

// The class name; empty when the window is gone.
std::wstring MyGetClassName(HWND hwnd);

// The caption, up to 9191 characters, a lone LF turned into CR LF. Of another process's control
// the system gives what it keeps itself, which is empty for most.
std::wstring MyGetWindowText(HWND hwnd);

// The text that the window answers WM_GETTEXT with, up to 4095 characters. Waits as long as the
// window takes.
std::wstring WindowTextByMessage(HWND hwnd);

// Put the window into or out of the topmost band; return SetWindowPos's result.
BOOL SetTopMost(HWND hwnd);
BOOL SetNoTopMost(HWND hwnd);

}  // namespace Win32API_Window
