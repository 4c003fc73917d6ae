// Whole numbers from fractions, as every number of this program is rounded.
#pragma once

#include <cstdint>

namespace platform {

// The integer nearest to numerator / denominator; a half goes to the even neighbour
// (5/2 gives 2, 7/2 gives 4, -5/2 gives -2). denominator must be greater than 0.
// Odd, and stays: docs/ODDITIES.md.
// A result beyond 32 bits is clamped to the nearest 32-bit number.
std::int32_t RoundedRatio(std::int64_t numerator, std::int64_t denominator) noexcept;

// value cut to the range of a signed 32-bit number.
std::int32_t ClampToInt32(std::int64_t value) noexcept;

}  // namespace platform
