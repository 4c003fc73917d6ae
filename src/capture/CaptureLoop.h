// One capture from start to end: follows the pointer and reports on the window under it whenever
// the pointer rests.
#pragma once

#include <functional>
#include <string>

#include "capture/CaptureContext.h"

namespace capture {

// Shows in lblStatus how a capture is stopped.
void ShowStopHint(const CaptureContext& context);

class CaptureLoop {
 public:
  // compose makes the report on the target window. commandLine is what follows the program's name.
  CaptureLoop(CaptureContext context, std::function<void()> compose, std::wstring commandLine);

  // Starts a capture and returns when it has ended. Returns at once when one runs already or the
  // program is about to end.
  void RunCapture();

 private:
  CaptureContext context_;
  std::function<void()> compose_;
  std::wstring commandLine_;
};

}  // namespace capture
