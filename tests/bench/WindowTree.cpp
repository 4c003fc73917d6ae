// A window with as many children as the command line says, visible ones, 30 of them nested into
// each other and the rest below these in turn.
#include <windows.h>

#include <cstdlib>
#include <vector>

namespace {

constexpr const wchar_t* kClass = L"BenchWindowTree";
constexpr int kDepth = 30;

LRESULT CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(hwnd, message, wParam, lParam);
}

HWND Child(HWND parent, int number) {
  wchar_t title[32] = {};
  wsprintfW(title, L"子ウィンドウ %d", number);
  return CreateWindowExW(0, L"STATIC", title, WS_CHILD | WS_VISIBLE, 0, 0, 10, 10, parent, nullptr,
                         nullptr, nullptr);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR commandLine, int) {
  WNDCLASSW windowClass = {};
  windowClass.lpfnWndProc = Procedure;
  windowClass.hInstance = instance;
  windowClass.lpszClassName = kClass;
  RegisterClassW(&windowClass);
  HWND root = CreateWindowExW(0, kClass, commandLine, WS_OVERLAPPEDWINDOW, 0, 0, 200, 200, nullptr,
                              nullptr, instance, nullptr);
  const int children = _wtoi(commandLine);
  std::vector<HWND> nested{root};
  for (int i = 0; i < children; ++i) {
    if (nested.size() <= kDepth) {
      nested.push_back(Child(nested.back(), i));
    } else {
      Child(nested[static_cast<std::size_t>(i) % nested.size()], i);
    }
  }
  ShowWindow(root, SW_SHOWNOACTIVATE);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  return 0;
}
