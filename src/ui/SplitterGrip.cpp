#include "ui/SplitterGrip.h"

#include <windowsx.h>

#include "ui/Window.h"

namespace ui {
namespace {

void Tell(HWND grip, SplitterEvent event, LPARAM mouse) {
  SendMessageW(GetParent(grip), kSplitterMessage, event, GET_Y_LPARAM(mouse));
}

LRESULT CALLBACK SplitterProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  switch (message) {
    case WM_LBUTTONDOWN:
      SetCapture(hwnd);
      Tell(hwnd, kSplitterPress, lParam);
      return 0;
    case WM_MOUSEMOVE:
      Tell(hwnd, kSplitterMove, lParam);
      return 0;
    case WM_LBUTTONUP:
      Tell(hwnd, kSplitterRelease, lParam);
      ReleaseCapture();
      return 0;
    case WM_CAPTURECHANGED:
      Tell(hwnd, kSplitterCancel, 0);
      return 0;
    default:
      return DefWindowProcW(hwnd, message, wParam, lParam);
  }
}

}  // namespace

void RegisterSplitterClass() {
  RegisterWindowClass(
      {kSplitterClass, SplitterProcedure, IDC_SIZENS, GetSysColorBrush(COLOR_BTNFACE)});
}

}  // namespace ui
