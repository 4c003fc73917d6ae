#include "capture/StopKey.h"

#include "capture/PaneCopy.h"
#include "settings/MySub_HotKey.h"

namespace capture {

void PollStopKey(const CaptureContext& context) {
  const auto& [state, settings, view, system] = context;
  if (!system.HotKeyPressed(MySub_HotKey::HotKeyCode(settings.hotkey))) return;
  if (settings.continueCapture == 1) {
    CopyTopPane(context);
  } else {
    state.CaptureRunning = false;
  }
}

}  // namespace capture
