#include "capture/RestTracker.h"

#include <gtest/gtest.h>

#include "capture/CaptureState.h"

namespace capture {
namespace {

constexpr POINT kHere{100, 200};
constexpr POINT kThere{101, 200};

// A tracker as a loop uses it: pass after pass, each ending at a tick.
class RestTrackerTest : public testing::Test {
 protected:
  std::int32_t Pass(POINT point, std::uint32_t endTick) {
    state_ = tracker_.Observe(point, now_, lastReport_, state_);
    now_ = endTick;
    tracker_.EndPass(endTick);
    return state_;
  }
  void Report(std::uint32_t tick) {
    state_ = kReported;
    lastReport_ = tick;
  }

  RestTracker tracker_;
  std::optional<std::uint32_t> now_;
  std::uint32_t lastReport_ = 1000;
  std::int32_t state_ = kMoved;
};

TEST_F(RestTrackerTest, APointOfTheFirstPassRestsFromItsEnd) {
  EXPECT_EQ(Pass(kHere, 1010), kMoved);
  EXPECT_EQ(tracker_.StillMs(), 0U);
  EXPECT_EQ(Pass(kHere, 1059), kMoved);
  EXPECT_EQ(Pass(kHere, 1060), kMoved);  // 49 ms
  EXPECT_EQ(tracker_.StillMs(), 49U);
  EXPECT_EQ(Pass(kHere, 1061), kDue);  // 50 ms
  EXPECT_EQ(tracker_.StillMs(), 50U);
}

TEST_F(RestTrackerTest, APointInTheCornerOfTheScreenRestsToo) {
  Pass({0, 0}, 1010);
  Pass({0, 0}, 1060);
  EXPECT_EQ(Pass({0, 0}, 1070), kDue);
}

TEST_F(RestTrackerTest, EveryMovementStartsTheRestAnew) {
  Pass(kHere, 1000);
  Pass(kHere, 1040);
  EXPECT_EQ(Pass(kThere, 1050), kMoved);
  Pass(kHere, 1060);
  // At rest since 1050, where the previous pass ended.
  EXPECT_EQ(Pass(kHere, 1099), kMoved);
  EXPECT_EQ(tracker_.StillMs(), 10U);
  EXPECT_EQ(Pass(kHere, 1100), kMoved);
  EXPECT_EQ(Pass(kHere, 1110), kDue);
}

TEST_F(RestTrackerTest, AMovementLeavesTheRestCountedSoFar) {
  Pass(kHere, 1000);
  Pass(kHere, 3000);
  Pass(kHere, 3010);
  ASSERT_EQ(tracker_.StillMs(), 2000U);
  Pass(kThere, 3020);
  EXPECT_EQ(tracker_.StillMs(), 2000U);
  Pass(kThere, 3030);
  EXPECT_EQ(tracker_.StillMs(), 10U);
}

TEST_F(RestTrackerTest, OneReportForOneRest) {
  Pass(kHere, 1000);
  Pass(kHere, 1100);
  ASSERT_EQ(Pass(kHere, 1110), kDue);
  Report(1100);
  EXPECT_EQ(Pass(kHere, 5000), kReported);
  EXPECT_EQ(Pass(kHere, 31'000), kReported);
  EXPECT_EQ(Pass(kHere, 31'099), kReported);
}

TEST_F(RestTrackerTest, AnotherReportAfterThirtySeconds) {
  Pass(kHere, 1000);
  Pass(kHere, 1100);
  Pass(kHere, 1110);
  Report(1110);
  Pass(kHere, 31'109);
  EXPECT_EQ(Pass(kHere, 31'110), kReported);  // 29,999 ms after the report
  EXPECT_EQ(Pass(kHere, 31'120), kDue);       // 30,000 ms
}

TEST_F(RestTrackerTest, NoReportWithoutRest) {
  POINT point = kHere;
  for (std::uint32_t tick = 1000; tick < 90'000; tick += 10) {
    ++point.x;
    ASSERT_EQ(Pass(point, tick), kMoved);
  }
}

TEST_F(RestTrackerTest, CountsAcrossTheWrapOfTheTick) {
  lastReport_ = 0xFFFF'FF00U;
  Pass(kHere, 0xFFFF'FFF0U);
  Pass(kHere, 0x0000'0020U);
  EXPECT_EQ(Pass(kHere, 0x0000'0021U), kMoved);  // 48 ms
  EXPECT_EQ(tracker_.StillMs(), 48U);
  EXPECT_EQ(Pass(kHere, 0x0000'0022U), kMoved);
  EXPECT_EQ(Pass(kHere, 0x0000'0023U), kDue);
}

TEST_F(RestTrackerTest, ATickOfZeroIsATickLikeAnyOther) {
  lastReport_ = 0;
  Pass(kHere, 0);
  Pass(kHere, 60);
  EXPECT_EQ(Pass(kHere, 61), kDue);
}

}  // namespace
}  // namespace capture
