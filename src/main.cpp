// Start, COM apartment, command line, message loop.

#include <windows.h>

#include <commctrl.h>
#include <objbase.h>

#include "capture/CaptureState.h"
#include "platform/API_Shell.h"
#include "platform/MessagePump.h"
#include "settings/Settings.h"
#include "ui/frmQuorvinFromPoint.h"

namespace {

class ComApartment {
 public:
  ComApartment() : result_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
  ~ComApartment() {
    if (SUCCEEDED(result_)) CoUninitialize();
  }
  ComApartment(const ComApartment&) = delete;
  ComApartment& operator=(const ComApartment&) = delete;

 private:
  HRESULT result_;
};

// The one place where the program ends while its window is open. A capture may be running below
// this message on the stack, waiting for its target; it must not continue.
void EndProgram() { ExitProcess(0); }

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR commandLine, int) {
  const ComApartment apartment;
  const INITCOMMONCONTROLSEX controls{sizeof controls,
                                      ICC_STANDARD_CLASSES | ICC_LINK_CLASS | ICC_BAR_CLASSES};
  InitCommonControlsEx(&controls);

  settings::Settings settings;
  capture::CaptureState state;
  ui::frmQuorvinFromPoint mainWindow(settings, state,
                                     {API_Shell::ProgramFolder(), commandLine, EndProgram});
  if (!mainWindow.Load()) return 1;
  return platform::RunMessageLoop();
}
