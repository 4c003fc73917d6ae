// The yardstick for the processor time: a window that makes the program's system calls and
// nothing else. The first word of the command line names what it imitates:
//   idle     a timer looks at the hot key, at T and at A
//   capture  a loop sleeps, pumps messages and looks at the hot key, and a timer asks for the
//            pointer and the window under it
//   report   the same, and once the pointer has rested for 50 ms the object and the window there
//            are asked for their texts; the window's becomes the caption
#include <windows.h>

#include <objbase.h>
#include <oleacc.h>

#include <cwchar>
#include <initializer_list>

namespace {

constexpr wchar_t kClass[] = L"BenchBareLoop";
constexpr UINT_PTR kIdleTimer = 1;
constexpr UINT_PTR kSampleTimer = 2;

bool PollIdleKeys() {
  bool pressed = false;
  for (const int key : {VK_ESCAPE, static_cast<int>('T'), static_cast<int>('A')}) {
    if ((GetAsyncKeyState(key) & 1) != 0) pressed = true;
  }
  return pressed;
}

POINT pointer = {};
HWND target = nullptr;

void SamplePointer() {
  GetCursorPos(&pointer);
  target = WindowFromPoint(pointer);
}

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_TIMER:
      if (wParam == kIdleTimer) PollIdleKeys();
      if (wParam == kSampleTimer) SamplePointer();
      return 0;
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProcW(window, message, wParam, lParam);
  }
}

// False when the program should end.
bool Pump() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) return false;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return true;
}

void RunIdle(HWND window) {
  SetTimer(window, kIdleTimer, 5, nullptr);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void RunCapture(HWND window) {
  SetTimer(window, kSampleTimer, 10, nullptr);
  DWORD last = 0;
  do {
    Sleep(10);
    if (!Pump()) return;
    last = GetTickCount();
    if ((GetAsyncKeyState(VK_ESCAPE) & 1) != 0) last = 0;
  } while (Pump() && last != 1);
}

void ReadObject() {
  IAccessible* object = nullptr;
  VARIANT child;
  VariantInit(&child);
  if (FAILED(AccessibleObjectFromPoint(pointer, &object, &child))) return;
  BSTR name = nullptr;
  object->get_accName(child, &name);
  SysFreeString(name);
  VariantClear(&child);
  object->Release();
}

void Report(HWND window) {
  static wchar_t text[1000];
  GetClassNameW(target, text, 1000);
  GetWindowTextW(target, text, 1000);
  ReadObject();
  SendMessageW(target, WM_GETTEXTLENGTH, 0, 0);
  SendMessageW(target, WM_GETTEXT, 1000, reinterpret_cast<LPARAM>(text));
  SetWindowTextW(window, text);
}

void RunReports(HWND window) {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  SetTimer(window, kSampleTimer, 10, nullptr);
  POINT last = {};
  DWORD since = 0;
  bool reported = true;
  do {
    const DWORD now = GetTickCount();
    if (pointer.x != last.x || pointer.y != last.y) {
      last = pointer;
      since = now;
      reported = false;
    }
    if (!reported && now - since >= 50) {
      Report(window);
      reported = true;
    }
    Sleep(10);
  } while (Pump());
  CoUninitialize();
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t* words, int) {
  WNDCLASSEXW windowClass = {};
  windowClass.cbSize = sizeof windowClass;
  windowClass.lpfnWndProc = Procedure;
  windowClass.hInstance = instance;
  windowClass.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
  windowClass.lpszClassName = kClass;
  RegisterClassExW(&windowClass);
  HWND window = CreateWindowExW(0, kClass, L"", WS_OVERLAPPEDWINDOW, 100, 341, 384, 427, nullptr,
                                nullptr, instance, nullptr);
  ShowWindow(window, SW_SHOWNORMAL);
  if (std::wcscmp(words, L"capture") == 0) {
    RunCapture(window);
  } else if (std::wcscmp(words, L"report") == 0) {
    RunReports(window);
  } else {
    RunIdle(window);
  }
  return 0;
}
