// Decides, from how long the pointer has rested, what the countdown shows and when a capture ends
// by itself.
#pragma once

#include <cstdint>

#include "settings/Settings.h"

namespace capture {

// Seconds until the capture stops: time (seconds) less the rest, to the nearest integer, halves
// to the even neighbour.
std::int32_t RemainingSeconds(std::int32_t time, std::uint32_t stillMs);

enum class CountdownStep {
  Clear,  // the countdown shows nothing
  Keep,   // it shows what it showed
  Show,   // it shows Countdown::remaining
  Stop,   // the capture ends
};

struct Countdown {
  CountdownStep step;
  std::int32_t remaining = 0;
};

// What a pass does. Only "auto stop" 1 stops a capture, and a time of 0 or less never does: auto
// stop needs a time.
Countdown DecideCountdown(const settings::Settings& settings, std::uint32_t stillMs);

}  // namespace capture
