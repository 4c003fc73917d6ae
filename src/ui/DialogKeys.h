// What a window with controls needs, in addition to the message pump, to be used by keyboard.
#pragma once

#include <windows.h>

namespace ui {

// Gives the focus back to the control that had it when the window was deactivated.
class FocusMemory {
 public:
  // For WM_ACTIVATE. The first time, and when the remembered control is gone or hidden, first gets
  // the focus.
  void OnActivate(HWND window, bool active, HWND first);

 private:
  HWND focus_ = nullptr;
};

// For DM_GETDEFID: the Enter key presses the button that has the focus, elsewhere the button with
// the number otherwise, and nothing when that is 0.
LRESULT DefaultButton(int otherwise = 0);

}  // namespace ui
