// The system calls by which a page is reached, one method per call. Each method makes the call of
// its name; tests override them to record the arguments and to choose the answers.
#pragma once

#include <windows.h>

#include "platform/Interface.h"

namespace MyInternetexplore {

class BrowserCalls : public platform::Interface {
 public:
  virtual UINT RegisterWindowMessageA(const char* name);
  virtual LRESULT SendMessageTimeoutA(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam,
                                      UINT flags, UINT milliseconds, DWORD_PTR* answer);
  virtual HRESULT ObjectFromLresult(LRESULT answer, REFIID id, WPARAM wParam, void** object);

  virtual HWND WindowFromPoint(POINT point);
  virtual BOOL GetWindowRect(HWND hwnd, RECT* place);
  virtual BOOL GetCursorPos(POINT* point);
  virtual DWORD GetWindowThreadProcessId(HWND hwnd, DWORD* processId);
  virtual DWORD GetTickCount();
};

// The real calls.
BrowserCalls& SystemBrowserCalls();

}  // namespace MyInternetexplore
