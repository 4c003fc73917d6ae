#include "ui/SplitterGrip.h"

#include <windowsx.h>

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
  const HINSTANCE instance = GetModuleHandleW(nullptr);
  WNDCLASSEXW grip{};
  grip.cbSize = sizeof grip;
  if (GetClassInfoExW(instance, kSplitterClass, &grip)) return;
  grip.lpfnWndProc = SplitterProcedure;
  grip.hInstance = instance;
  grip.hCursor = LoadCursorW(nullptr, IDC_SIZENS);
  grip.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  grip.lpszClassName = kSplitterClass;
  RegisterClassExW(&grip);
}

}  // namespace ui
