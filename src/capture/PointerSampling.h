// The tick of Timer2: where the pointer is and which window lies there.
#pragma once

#include "capture/CaptureContext.h"
#include "platform/ReadPoint.h"

namespace capture {

// While a capture runs: notes the point to read, the window at it, and shows the pointer's
// position. Otherwise clears the target window.
void SamplePointer(const CaptureContext& context);

// What was noted last, as the readers take it.
platform::ReadPoint PointToRead(const CaptureState& state);

}  // namespace capture
