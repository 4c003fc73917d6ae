#include "platform/Rounding.h"

#include <algorithm>
#include <limits>

namespace platform {

std::int32_t ClampToInt32(std::int64_t value) noexcept {
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

std::int32_t RoundedRatio(std::int64_t numerator, std::int64_t denominator) noexcept {
  std::int64_t floor = numerator / denominator;
  std::int64_t rest = numerator % denominator;
  if (rest < 0) {
    --floor;
    rest += denominator;
  }
  const std::int64_t toNext = denominator - rest;
  const bool up = rest > toNext || (rest == toNext && floor % 2 != 0);
  return ClampToInt32(up ? floor + 1 : floor);
}

}  // namespace platform
