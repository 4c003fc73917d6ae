#include "capture/RestTracker.h"

#include "capture/CaptureState.h"

namespace capture {
namespace {

bool SamePoint(POINT a, POINT b) { return a.x == b.x && a.y == b.y; }

}  // namespace

std::int32_t RestTracker::Observe(POINT point, std::optional<std::uint32_t> nowTick,
                                  std::uint32_t lastReportTick, std::int32_t reportState) {
  if (!nowTick || !savedPoint_ || !SamePoint(point, *savedPoint_)) {
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
