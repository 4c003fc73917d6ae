// Decides from the points of a capture's passes when a report is due.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>

namespace capture {

constexpr std::uint32_t kRestMs = 50;        // rest that makes a report due
constexpr std::uint32_t kRepeatMs = 30'000;  // a resting point is reported again after this

class RestTracker {
 public:
  // One pass: the point as it is now, the tick at the end of the previous pass (none in the first
  // pass) and the tick of the last report. Returns the new ReportState.
  std::int32_t Observe(POINT point, std::optional<std::uint32_t> nowTick,
                       std::uint32_t lastReportTick, std::int32_t reportState);

  // The tick at the end of a pass. A point noted in the first pass rests from its end on.
  void EndPass(std::uint32_t nowTick);

  // Milliseconds that the point had rested when it was last seen at rest. A movement does not
  // reset it, the next pass at rest does. Odd, and stays: docs/ODDITIES.md.
  std::uint32_t StillMs() const { return stillMs_; }

 private:
  std::optional<POINT> savedPoint_;
  std::optional<std::uint32_t> stillSinceTick_;
  std::uint32_t stillMs_ = 0;
};

}  // namespace capture
