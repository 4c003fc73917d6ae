// The tick of Timer_MsgLoop: the keys that act while no capture runs.
#pragma once

#include "capture/CaptureContext.h"

namespace capture {

// Handles the first of these keys that was pressed: the hot key starts a capture, Alt+T brings the
// main window to the front, Ctrl+A selects the whole text of the box that has the focus when the
// main window is in front.
void PollIdleKeys(const CaptureContext& context);

}  // namespace capture
