#include "capture/AutoStopCountdown.h"

#include "platform/Rounding.h"

namespace capture {
namespace {

constexpr std::int32_t kFirstShown = 3;

}  // namespace

std::int32_t RemainingSeconds(std::int32_t time, std::uint32_t stillMs) {
  return platform::RoundedRatio(std::int64_t{time} * 1000 - std::int64_t{stillMs}, 1000);
}

Countdown DecideCountdown(const settings::Settings& settings, std::uint32_t stillMs) {
  if (settings.autoStop != 0 && settings.autoStop != 1) return {CountdownStep::Keep};
  if (settings.autoStop == 0 || settings.autoStopTime <= 0) return {CountdownStep::Clear};
  const std::int32_t remaining = RemainingSeconds(settings.autoStopTime, stillMs);
  if (remaining < 1) return {CountdownStep::Stop};
  // The last digit stays while more is left. Odd, and stays: docs/ODDITIES.md.
  if (remaining > kFirstShown) return {CountdownStep::Keep};
  return {CountdownStep::Show, remaining};
}

}  // namespace capture
