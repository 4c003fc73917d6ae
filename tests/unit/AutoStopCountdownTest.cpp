#include "capture/AutoStopCountdown.h"

#include <gtest/gtest.h>

namespace capture {
namespace {

settings::Settings AutoStop(std::int32_t on, std::int32_t seconds) {
  settings::Settings settings;
  settings.autoStop = on;
  settings.autoStopTime = seconds;
  return settings;
}

TEST(RemainingSecondsTest, RoundsHalvesToEven) {
  EXPECT_EQ(RemainingSeconds(5, 0), 5);
  EXPECT_EQ(RemainingSeconds(5, 499), 5);
  EXPECT_EQ(RemainingSeconds(5, 500), 4);
  EXPECT_EQ(RemainingSeconds(5, 1500), 4);
  EXPECT_EQ(RemainingSeconds(5, 1501), 3);
  EXPECT_EQ(RemainingSeconds(5, 2500), 2);
  EXPECT_EQ(RemainingSeconds(5, 3500), 2);
  EXPECT_EQ(RemainingSeconds(5, 3501), 1);
  EXPECT_EQ(RemainingSeconds(5, 4500), 0);
  EXPECT_EQ(RemainingSeconds(5, 60'000), -55);
  EXPECT_EQ(RemainingSeconds(2147483647, 0), 2147483647);
  EXPECT_EQ(RemainingSeconds(0, 0xFFFF'FFFFU), -4294967);
}

TEST(DecideCountdownTest, ShowsTheLastThreeSecondsOnly) {
  const auto step = [](std::uint32_t still) { return DecideCountdown(AutoStop(1, 5), still); };
  EXPECT_EQ(step(0).step, CountdownStep::Keep);
  EXPECT_EQ(step(1500).step, CountdownStep::Keep);
  EXPECT_EQ(step(1501).step, CountdownStep::Show);
  EXPECT_EQ(step(1501).remaining, 3);
  EXPECT_EQ(step(2499).remaining, 3);
  EXPECT_EQ(step(2500).remaining, 2);
  EXPECT_EQ(step(3500).remaining, 2);
  EXPECT_EQ(step(3501).remaining, 1);
  EXPECT_EQ(step(4499).step, CountdownStep::Show);
  EXPECT_EQ(step(4500).step, CountdownStep::Stop);
}

TEST(DecideCountdownTest, StopsAShortTimeWithoutACountdown) {
  EXPECT_EQ(DecideCountdown(AutoStop(1, 1), 499).remaining, 1);
  EXPECT_EQ(DecideCountdown(AutoStop(1, 1), 500).step, CountdownStep::Stop);
}

TEST(DecideCountdownTest, NeedsToBeOnAndToHaveATime) {
  EXPECT_EQ(DecideCountdown(AutoStop(0, 5), 60'000).step, CountdownStep::Clear);
  EXPECT_EQ(DecideCountdown(AutoStop(1, 0), 60'000).step, CountdownStep::Clear);
  EXPECT_EQ(DecideCountdown(AutoStop(1, -3), 60'000).step, CountdownStep::Clear);
  EXPECT_EQ(DecideCountdown(AutoStop(0, 0), 0).step, CountdownStep::Clear);
  for (const std::int32_t neither : {2, -1}) {
    EXPECT_EQ(DecideCountdown(AutoStop(neither, 5), 60'000).step, CountdownStep::Keep);
  }
}

}  // namespace
}  // namespace capture
