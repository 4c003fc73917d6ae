// The calls that reach a page, answered with the test's own windows and object.
#pragma once

#include <windows.h>

#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "browser/MyInternetexplore.h"

class FakeBrowser : public MyInternetexplore::BrowserCalls {
 public:
  static constexpr UINT kMessage = 0xC123;

  UINT RegisterWindowMessageA(const char* name) override {
    calls.push_back(std::string("register ") + name);
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return message;
  }
  LRESULT SendMessageTimeoutA(HWND hwnd, UINT sent, WPARAM wParam, LPARAM lParam, UINT flags,
                              UINT milliseconds, DWORD_PTR* result) override {
    std::ostringstream call;
    call << "send " << Number(hwnd) << ' ' << (sent == kMessage ? "page" : std::to_string(sent))
         << ' ' << wParam << ' ' << lParam << ' ' << flags << ' ' << milliseconds;
    calls.push_back(call.str());
    if (onSend) onSend();
    SetLastError(sendError);
    if (sendError != ERROR_SUCCESS) return 0;
    *result = answer;
    return 1;
  }
  HRESULT ObjectFromLresult(LRESULT given, REFIID id, WPARAM wParam, void** object) override {
    wchar_t text[64] = {};
    StringFromGUID2(id, text, 64);
    std::ostringstream call;
    call << "object " << given << ' ';
    for (const wchar_t* c = text; *c != L'\0'; ++c) call << static_cast<char>(*c);
    call << ' ' << wParam;
    calls.push_back(call.str());
    *object = nullptr;
    if (served == nullptr || (id == IID_NULL && refusesNull)) return E_NOINTERFACE;
    if (id == IID_NULL) return served->QueryInterface(IID_IUnknown, object);
    return served->QueryInterface(id, object);
  }
  HWND WindowFromPoint(POINT point) override {
    calls.push_back("window at " + std::to_string(point.x) + "," + std::to_string(point.y));
    return reinterpret_cast<HWND>(7);
  }
  BOOL GetWindowRect(HWND hwnd, RECT* place) override {
    calls.push_back("place of " + std::to_string(Number(hwnd)));
    *place = windowPlace;
    return TRUE;
  }
  BOOL GetCursorPos(POINT* point) override {
    calls.push_back("pointer");
    *point = pointer;
    SetLastError(ERROR_ACCESS_DENIED);
    return hasPointer ? TRUE : FALSE;
  }
  DWORD GetWindowThreadProcessId(HWND hwnd, DWORD*) override {
    return threads.contains(Number(hwnd)) ? threads[Number(hwnd)] : 50;
  }
  DWORD GetTickCount() override { return now; }

  static int Number(HWND hwnd) { return static_cast<int>(reinterpret_cast<INT_PTR>(hwnd)); }

  std::vector<std::string> calls;
  UINT message = kMessage;
  DWORD_PTR answer = 4711;
  DWORD sendError = ERROR_SUCCESS;
  std::function<void()> onSend;
  IUnknown* served = nullptr;  // the object behind the answer
  bool refusesNull = false;    // it is not given under the all-zero identifier
  RECT windowPlace{};
  POINT pointer{};
  bool hasPointer = true;
  std::map<int, DWORD> threads;  // of windows; all others have one thread
  DWORD now = 0xFFFF'FF00;       // about to wrap around

  MyInternetexplore::BoundedMessages messages{*this};
  const MyInternetexplore::BrowserAccess access{*this, messages};
};
