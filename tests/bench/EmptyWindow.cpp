// The yardstick for the start-up time: a program that shows a window and does nothing else.
#include <windows.h>

namespace {

constexpr wchar_t kClass[] = L"BenchEmptyWindow";

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t*, int) {
  WNDCLASSEXW windowClass = {};
  windowClass.cbSize = sizeof windowClass;
  windowClass.lpfnWndProc = Procedure;
  windowClass.hInstance = instance;
  windowClass.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
  windowClass.lpszClassName = kClass;
  RegisterClassExW(&windowClass);
  HWND window = CreateWindowExW(0, kClass, L"", WS_OVERLAPPEDWINDOW, 640, 341, 384, 427, nullptr,
                                nullptr, instance, nullptr);
  ShowWindow(window, SW_SHOWNORMAL);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  return 0;
}
