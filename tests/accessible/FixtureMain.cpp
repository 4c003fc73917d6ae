// A target for tests: a window without a frame whose accessible objects are our own.
//
//   accessible_fixture.exe [deadline=SECONDS] [title=CAPTION] [place=X,Y,WIDTH,HEIGHT]
//   SCENE[=VALUE]
//
// The scenes stand in Scenes.h, the other words in the fixture's CommandLine.h. Once the window
// stands, "main=HANDLE" (decimal) goes to the standard output. Each action that is performed on an
// object is added to the window's caption, as "ACTION@TICK;". The program ends when its window is
// closed and at its deadline. Exit codes: 0, 2 unknown scene.
#include <windows.h>

#include <objbase.h>
#include <oleacc.h>
#include <shellapi.h>

#include <memory>
#include <string>

#include "Scenes.h"
#include "fixture/CommandLine.h"

namespace {

accessible::Scene scene;

LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_GETOBJECT:
      if (static_cast<LONG>(lParam) == OBJID_CLIENT) {
        return LresultFromObject(IID_IAccessible, wParam,
                                 static_cast<IAccessible*>(&scene.nodes.front()));
      }
      break;
    case WM_TIMER:
      DestroyWindow(window);
      return 0;
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    default:
      break;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

HWND CreateFixtureWindow(HINSTANCE instance, const fixture::CommandLine& asked) {
  WNDCLASSEXW windowClass = {};
  windowClass.cbSize = sizeof windowClass;
  windowClass.lpfnWndProc = WindowProcedure;
  windowClass.hInstance = instance;
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
  windowClass.lpszClassName = scene.windowClass;
  RegisterClassExW(&windowClass);
  return CreateWindowExW(WS_EX_TOPMOST | WS_EX_NOACTIVATE, scene.windowClass, asked.title.c_str(),
                         WS_POPUP, asked.x, asked.y, asked.width, asked.height, nullptr, nullptr,
                         instance, nullptr);
}

void AddToCaption(HWND window, const std::string& action) {
  wchar_t caption[1024] = {};
  GetWindowTextW(window, caption, static_cast<int>(std::size(caption)));
  std::wstring text = caption + std::wstring(action.begin(), action.end());
  text += L"@" + std::to_wstring(GetTickCount()) + L";";
  SetWindowTextW(window, text.c_str());
}

void Say(const std::string& line) {
  DWORD written = 0;
  WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), line.data(), static_cast<DWORD>(line.size()), &written,
            nullptr);
}

struct LocalFreeCall {
  void operator()(wchar_t** words) const { LocalFree(words); }
};

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t*, int) {
  int count = 0;
  const std::unique_ptr<wchar_t*, LocalFreeCall> words(
      CommandLineToArgvW(GetCommandLineW(), &count));
  const fixture::CommandLine asked = fixture::ParseCommandLine(count, words.get());
  const RECT place = {asked.x, asked.y, asked.width, asked.height};
  if (asked.kinds.size() != 1 ||
      !accessible::BuildScene(asked.kinds[0].kind, asked.kinds[0].text, place, scene)) {
    return 2;
  }

  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  HWND window = CreateFixtureWindow(instance, asked);
  for (accessible::Node& node : scene.nodes) {
    node.onAction = [window](const std::string& action) { AddToCaption(window, action); };
  }
  SetTimer(window, 1, asked.deadlineSeconds * 1000, nullptr);
  ShowWindow(window, SW_SHOWNOACTIVATE);
  UpdateWindow(window);
  Say("main=" + std::to_string(reinterpret_cast<UINT_PTR>(window)) + "\n");

  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  CoUninitialize();
  return static_cast<int>(message.wParam);
}
