// One capture from start to end: follows the pointer and reports on the window under it whenever
// the pointer rests.
#pragma once

#include <functional>
#include <string_view>

#include "capture/CaptureContext.h"

namespace capture {

// Shows in lblStatus how a capture is stopped.
void ShowStopHint(const CaptureContext& context);

// Starts a capture and returns when it has ended; at once when one runs already or the program is
// about to end. compose makes the report on the target window. commandLine is what follows the
// program's name.
void RunCapture(const CaptureContext& context, const std::function<void()>& compose,
                std::wstring_view commandLine);

}  // namespace capture
