// A target for tests: a window without a frame, with accessible objects for tests.
//
//   accessible_fixture.exe [parent=PID] [deadline=SECONDS] [title=CAPTION]
//                          [place=X,Y,WIDTH,HEIGHT] SCENE[=VALUE]
//
// The scenes are in Scenes.h, the other words in the fixture's CommandLine.h. Once the window
// exists, "main=HANDLE" (decimal) and the line "ready" go to the standard output. Each action that
// is performed on an object is added to the window's caption, as "ACTION@TICK;". The program ends
// when its window is closed, when its parent ends and at its deadline. Exit codes: 0 closed, 2
// unknown scene, 3 parent gone or deadline passed, 4 COM refuses.
#include <windows.h>

#include <objbase.h>
#include <oleacc.h>

#include <string>

#include "Scenes.h"
#include "fixture/CommandLine.h"
#include "fixture/FixtureProgram.h"
#include "fixture/HeldInterfaces.h"

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
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    default:
      break;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

HWND CreateFixtureWindow(HINSTANCE instance, const fixture::CommandLine& asked) {
  fixture::Register(scene.windowClass, WindowProcedure);
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

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t*, int) {
  const fixture::CommandLine asked = fixture::ParseCommandLine(fixture::OwnWords());
  const RECT place = {asked.x, asked.y, asked.width, asked.height};
  if (asked.kinds.size() != 1 ||
      !accessible::BuildScene(asked.kinds[0].kind, asked.kinds[0].text, place, scene)) {
    return 2;
  }

  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  if (!fixture::HoldInterfaces({IID_IDispatch, IID_IAccessible, IID_IEnumVARIANT})) return 4;
  HWND window = CreateFixtureWindow(instance, asked);
  for (accessible::Node& node : scene.nodes) {
    node.onAction = [window](const std::string& action) { AddToCaption(window, action); };
  }
  ShowWindow(window, SW_SHOWNOACTIVATE);
  UpdateWindow(window);
  fixture::Say(L"main", window);
  fixture::Say("ready");

  const int code = fixture::RunUntilTheEnd(asked.parentProcess, asked.deadlineSeconds);
  CoUninitialize();
  return code;
}
