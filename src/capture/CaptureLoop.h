// One capture from start to end: follows the pointer and reports on the window under it whenever
// the pointer rests.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "capture/CaptureContext.h"
#include "capture/RestTracker.h"

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
  // What lives for one capture.
  struct Locals {
    RestTracker rest;
    std::optional<std::uint32_t> nowTick;  // at the end of the pass before
    std::uint32_t lastMarkerTick = 0;
    std::uint32_t lastHintTick = 0;
    std::uint32_t lastActionTick = 0;
  };

  void Start();
  void Pass(Locals& locals);
  void End();

  void RewriteStopHint();
  void UpdateMarkers(Locals& locals);
  void TrackRest(Locals& locals);
  void ReportIfDue();
  void ShowTooltipHint(Locals& locals);
  void CountDown(const Locals& locals);
  void StopByItself();
  void PollActionKey(Locals& locals);
  bool TargetIsOwnWindow();
  void ClearReport();

  CaptureContext context_;
  std::function<void()> compose_;
  std::wstring commandLine_;
};

}  // namespace capture
