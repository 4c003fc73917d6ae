// The system calls by which a page is reached, one method per call. Each method makes the call of
// its name; tests override them to record the arguments and to choose the answers.
#pragma once

#include <windows.h>

#include <oleacc.h>

#include "platform/Interface.h"

namespace MyInternetexplore {

class BrowserCalls : public platform::Interface {
 public:
  virtual UINT RegisterWindowMessageA(const char* name) { return ::RegisterWindowMessageA(name); }
  virtual LRESULT SendMessageTimeoutA(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam,
                                      UINT flags, UINT milliseconds, DWORD_PTR* answer) {
    return ::SendMessageTimeoutA(hwnd, message, wParam, lParam, flags, milliseconds, answer);
  }
  virtual HRESULT ObjectFromLresult(LRESULT answer, REFIID id, WPARAM wParam, void** object) {
    return ::ObjectFromLresult(answer, id, wParam, object);
  }

  virtual HWND WindowFromPoint(POINT point) { return ::WindowFromPoint(point); }
  virtual BOOL GetWindowRect(HWND hwnd, RECT* place) { return ::GetWindowRect(hwnd, place); }
  virtual BOOL GetCursorPos(POINT* point) { return ::GetCursorPos(point); }
  virtual DWORD GetWindowThreadProcessId(HWND hwnd, DWORD* processId) {
    return ::GetWindowThreadProcessId(hwnd, processId);
  }
  virtual DWORD GetTickCount() { return ::GetTickCount(); }
};

// The real calls.
inline BrowserCalls& SystemBrowserCalls() {
  static BrowserCalls calls;
  return calls;
}

}  // namespace MyInternetexplore
