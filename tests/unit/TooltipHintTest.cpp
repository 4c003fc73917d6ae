#include "capture/TooltipHint.h"

#include <gtest/gtest.h>

#include <limits>

namespace capture {
namespace {

struct TooltipCase {
  std::uint32_t stillMs;
  std::uint32_t now;
  std::uint32_t lastAsked;
  bool due;
};

constexpr std::uint32_t kLastTick = std::numeric_limits<std::uint32_t>::max();

// Rest from 501 to 2,999 ms, and more than 100 ms since the last time.
constexpr TooltipCase kCases[] = {
    {0, 9000, 0, false},         {500, 9000, 0, false},       {501, 9000, 0, true},
    {2999, 9000, 0, true},       {3000, 9000, 0, false},      {kLastTick, 9000, 0, false},
    {700, 9000, 8999, false},    {700, 9000, 8900, false},    {700, 9000, 8899, true},
    {700, 9000, 9000, false},    {700, 0, 0, false},          {500, 9000, 8899, false},
    {3000, 9000, 8899, false},   {700, 100, kLastTick, true},  // the ticks have wrapped
    {700, 99, kLastTick, false},
};

TEST(TooltipIsDueTest, InTheFirstSecondsOfRestAndNotTooOften) {
  for (const TooltipCase& one : kCases) {
    EXPECT_EQ(TooltipIsDue(one.stillMs, one.now, one.lastAsked), one.due)
        << "still " << one.stillMs << ", now " << one.now << ", last " << one.lastAsked;
  }
}

}  // namespace
}  // namespace capture
