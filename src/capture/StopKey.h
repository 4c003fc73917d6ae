// The key that stops a capture, or, with the setting "continue", copies and goes on.
#pragma once

#include "capture/CaptureContext.h"

namespace capture {

// Asked in every pass of a capture and after every item of a long reading: each press counts once,
// whoever sees it first.
void PollStopKey(const CaptureContext& context);

}  // namespace capture
