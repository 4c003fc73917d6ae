#include "capture/RestTracker.h"

#include "capture/CaptureState.h"
#include "platform/ReadPoint.h"

namespace capture {
std::int32_t RestTracker::Observe(POINT point, std::optional<std::uint32_t> nowTick,
                                  std::uint32_t lastReportTick, std::int32_t reportState) {
  if (!nowTick || !savedPoint_ || !platform::SamePoint(point, *savedPoint_)) {
    savedPoint_ = point;
    stillSinceTick_ = nowTick;
    return kMoved;
  }
  // Differences of unsigned ticks stay correct when the counter wraps.
  if (stillSinceTick_) stillMs_ = *nowTick - *stillSinceTick_;
  const bool repeat = *nowTick - lastReportTick >= kRepeatMs;
  const bool rested = stillMs_ >= kRestMs && reportState == kMoved;
  return repeat || rested ? kDue : reportState;
}

void RestTracker::EndPass(std::uint32_t nowTick) {
  if (savedPoint_ && !stillSinceTick_) stillSinceTick_ = nowTick;
}

}  // namespace capture
