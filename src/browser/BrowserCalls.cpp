#include "browser/BrowserCalls.h"

#include <oleacc.h>

namespace MyInternetexplore {

UINT BrowserCalls::RegisterWindowMessageA(const char* name) {
  return ::RegisterWindowMessageA(name);
}

LRESULT BrowserCalls::SendMessageTimeoutA(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam,
                                          UINT flags, UINT milliseconds, DWORD_PTR* answer) {
  return ::SendMessageTimeoutA(hwnd, message, wParam, lParam, flags, milliseconds, answer);
}

HRESULT BrowserCalls::ObjectFromLresult(LRESULT answer, REFIID id, WPARAM wParam, void** object) {
  return ::ObjectFromLresult(answer, id, wParam, object);
}

HWND BrowserCalls::WindowFromPoint(POINT point) { return ::WindowFromPoint(point); }

BOOL BrowserCalls::GetWindowRect(HWND hwnd, RECT* place) { return ::GetWindowRect(hwnd, place); }

BOOL BrowserCalls::GetCursorPos(POINT* point) { return ::GetCursorPos(point); }

DWORD BrowserCalls::GetWindowThreadProcessId(HWND hwnd, DWORD* processId) {
  return ::GetWindowThreadProcessId(hwnd, processId);
}

DWORD BrowserCalls::GetTickCount() { return ::GetTickCount(); }

BrowserCalls& SystemBrowserCalls() {
  static BrowserCalls calls;
  return calls;
}

}  // namespace MyInternetexplore
