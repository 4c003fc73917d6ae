// A window of this program whose messages a C++ object handles.
#pragma once

#include <windows.h>

#include <string_view>

namespace ui {

struct ClassPlan {
  const wchar_t* name;
  WNDPROC procedure;
  const wchar_t* cursor = IDC_ARROW;
  HBRUSH background = nullptr;
};

// Registers a window class of this program, with the program's icon, unless it is registered
// already.
void RegisterWindowClass(const ClassPlan& plan);

struct WindowPlan {
  const wchar_t* className;
  const wchar_t* caption = L"";
  DWORD style = 0;
  DWORD exStyle = 0;
  HWND parentOrOwner = nullptr;
  HBRUSH background = nullptr;                     // owned by the caller
  RECT place{CW_USEDEFAULT, CW_USEDEFAULT, 0, 0};  // left, top, width, height in pixels
};

class Window {
 public:
  Window() = default;
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  virtual ~Window();

  HWND Handle() const noexcept { return hwnd_; }

 protected:
  // Creates the window; its class is registered with the first window of that class. Returns
  // whether it was created.
  bool Create(const WindowPlan& plan);

  // Called for every message; passes what it does not handle to Default. Exceptions that leave it
  // are swallowed.
  virtual LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;

  LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcW(hwnd_, message, wParam, lParam);
  }

 private:
  static LRESULT CALLBACK Thunk(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

  HWND hwnd_ = nullptr;
};

}  // namespace ui
