// The system calls by which a page is reached, one method a call. The methods make the call of
// their name; tests override them to record the arguments and to answer as they like.
#pragma once

#include <windows.h>

namespace MyInternetexplore {

class BrowserCalls {
 public:
  BrowserCalls() = default;
  BrowserCalls(const BrowserCalls&) = delete;
  BrowserCalls& operator=(const BrowserCalls&) = delete;
  virtual ~BrowserCalls() = default;

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

// The one that makes the calls.
BrowserCalls& SystemBrowserCalls();

}  // namespace MyInternetexplore
