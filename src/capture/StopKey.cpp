#include "capture/StopKey.h"

#include <utility>

#include "capture/PaneCopy.h"
#include "settings/MySub_HotKey.h"

namespace capture {
namespace {

bool IsPressed(const CaptureContext& context) {
  return context.system.HotKeyPressed(MySub_HotKey::HotKeyCode(context.settings.hotkey));
}

}  // namespace

void PollStopKey(const CaptureContext& context) {
  const bool kept = std::exchange(context.state.StopKeyKept, false);
  if (!IsPressed(context) && !kept) return;
  if (context.settings.continueCapture == 1) {
    CopyTopPane(context);
  } else {
    context.state.CaptureRunning = false;
  }
}

void PollStopKeyBetweenItems(const CaptureContext& context) {
  if (!IsPressed(context)) return;
  if (context.settings.continueCapture == 1) {
    context.state.StopKeyKept = true;
  } else {
    context.state.CaptureRunning = false;
  }
}

}  // namespace capture
