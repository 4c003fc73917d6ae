#include "capture/IdleKeys.h"

#include "settings/MySub_HotKey.h"

namespace capture {

void PollIdleKeys(const CaptureContext& context) {
  const auto& [state, settings, view, system] = context;
  if (system.HotKeyPressed(MySub_HotKey::HotKeyCode(settings.hotkey))) {
    if (state.CaptureRunning) {
      state.CaptureRunning = false;
      state.RunState.clear();
    } else {
      view.EnableTimer(CaptureTimer::Timer_Go, true);
    }
  } else if (system.HotKeyPressed(MySub_HotKey::kAltT) && settings.enableHotT == 1) {
    view.BringToFront();
    view.FocusTopPane();
  } else if (system.HotKeyPressed(MySub_HotKey::kCtrlA) &&
             system.Foreground() == view.MainWindow()) {
    system.SendSelectAll();
  }
}

}  // namespace capture
