#include "capture/IdleKeys.h"

#include "settings/MySub_HotKey.h"

namespace capture {

void PollIdleKeys(const CaptureContext& context) {
  CaptureState& state = context.state;
  CaptureView& view = context.view;
  CaptureSystem& system = context.system;
  if (system.HotKeyPressed(MySub_HotKey::HotKeyCode(context.settings.hotkey))) {
    if (state.CaptureRunning) {
      state.CaptureRunning = false;
      state.RunState.clear();
    } else {
      view.EnableTimer(CaptureTimer::Timer_Go, true);
    }
  } else if (system.HotKeyPressed(MySub_HotKey::kAltT) && context.settings.enableHotT == 1) {
    view.BringToFront();
    view.FocusTopPane();
  } else if (system.HotKeyPressed(MySub_HotKey::kCtrlA) &&
             system.Foreground() == view.MainWindow()) {
    system.SendSelectAll();
  }
}

}  // namespace capture
