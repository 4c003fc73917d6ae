// The key that stops a capture, or, with the setting "continue", copies and goes on.
#pragma once

#include "capture/CaptureContext.h"

namespace capture {

// The key is polled in every pass of a capture and between the items of a long reading: each press
// is handled once, by the poll that sees it first.

// In the pass: stops the capture; with "continue", copies the top pane.
void PollStopKey(const CaptureContext& context);

// Between two items: stops the capture. With "continue" the press is kept for the pass, so that
// what is copied is the text of the finished report.
void PollStopKeyBetweenItems(const CaptureContext& context);

}  // namespace capture
