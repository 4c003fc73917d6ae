// One loop runs several captures: none uses the times of a previous one.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FakeCapture.h"
#include "capture/CaptureLoop.h"

namespace capture {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

constexpr std::int32_t kCtrl = 17;
constexpr std::uint32_t kPassMs = 10;

class RepeatedCaptureTest : public testing::Test {
 protected:
  RepeatedCaptureTest() { fake_.state.CapturePoint = {50, 60}; }

  // A capture of that many passes over a point that never moves. Returns the tick of its start.
  std::uint32_t Capture(int passes, std::function<void()> inPass = {}) {
    const std::uint32_t start = fake_.system.now;
    const int last = fake_.system.sleeps + passes;
    fake_.system.onSleep = [this, last, inPass = std::move(inPass)] {
      fake_.state.TargetWindow = WindowNumber(77);
      if (inPass) inPass();
      if (fake_.system.sleeps >= last) fake_.state.CaptureRunning = false;
    };
    RunCapture(
        fake_.Context(), [this] { reportTicks_.push_back(fake_.system.now); }, L"");
    return start;
  }

  // A capture that ends automatically. Returns how long it took.
  std::uint32_t CaptureUntilItStops() {
    const std::uint32_t start = fake_.system.now;
    const int patience = fake_.system.sleeps + 2000;
    fake_.system.onSleep = [this, patience] {
      fake_.state.TargetWindow = WindowNumber(77);
      if (fake_.system.sleeps < patience) return;
      ADD_FAILURE() << "does not stop";
      fake_.state.CaptureRunning = false;
    };
    RunCapture(
        fake_.Context(), [this] { reportTicks_.push_back(fake_.system.now); }, L"");
    return fake_.system.now - start;
  }

  FakeCapture fake_;
  std::vector<std::uint32_t> reportTicks_;
};

TEST_F(RepeatedCaptureTest, ThePointHasToRestAnew) {
  const std::uint32_t first = Capture(300);
  const std::uint32_t second = Capture(300);
  EXPECT_THAT(reportTicks_, ElementsAre(first + 60, second + 60));
}

TEST_F(RepeatedCaptureTest, TheToolTipIsLookedForAfterTheRestOfThisCapture) {
  fake_.settings.hint = 1;
  Capture(100);
  ASSERT_GT(fake_.system.tooltipsAsked, 0);
  std::vector<std::uint32_t> asked;
  const std::uint32_t second = Capture(100, [&, before = fake_.system.tooltipsAsked]() mutable {
    if (fake_.system.tooltipsAsked > before) asked.push_back(fake_.system.now - kPassMs);
    before = fake_.system.tooltipsAsked;
  });
  ASSERT_FALSE(asked.empty());
  EXPECT_EQ(asked.front(), second + 520);
}

// The tick counter starts from 0 after 49.7 days.
TEST_F(RepeatedCaptureTest, ASearchInThePreviousCaptureDelaysNone) {
  fake_.settings.hint = 1;
  std::uint32_t lastAsked = 0;
  Capture(100, [&, before = fake_.system.tooltipsAsked]() mutable {
    if (fake_.system.tooltipsAsked > before) lastAsked = fake_.system.now - kPassMs;
    before = fake_.system.tooltipsAsked;
  });
  ASSERT_GT(lastAsked, 0U);
  fake_.system.now = lastAsked - 480;
  std::uint32_t firstAsked = 0;
  Capture(100, [&, before = fake_.system.tooltipsAsked] {
    if (firstAsked == 0 && fake_.system.tooltipsAsked > before) {
      firstAsked = fake_.system.now - kPassMs;
    }
  });
  EXPECT_EQ(firstAsked, lastAsked + 40);
}

TEST_F(RepeatedCaptureTest, TheActionKeyActsAtOnce) {
  fake_.settings.actionTest = 1;
  fake_.system.down.insert(kCtrl);
  Capture(20);
  const std::uint32_t second = Capture(20);
  ASSERT_THAT(fake_.system.actionTicks, SizeIs(2));
  EXPECT_EQ(fake_.system.actionTicks[1], second + kPassMs);
}

TEST_F(RepeatedCaptureTest, TheMarkersAreShownInItsFirstPasses) {
  Capture(20);
  const int before = fake_.view.markersShown;
  Capture(2);
  // At the start, and in the first pass that has a tick.
  EXPECT_EQ(fake_.view.markersShown, before + 2);
}

TEST_F(RepeatedCaptureTest, AutoStopCountsTheRestOfThisCapture) {
  fake_.settings.autoStop = 1;
  fake_.settings.autoStopTime = 5;
  // The last pass ends 4.5 s after the first one.
  EXPECT_NEAR(CaptureUntilItStops(), 10 + 4500, 30);
  fake_.view.writes[ViewText::lblAutoStop].clear();
  EXPECT_NEAR(CaptureUntilItStops(), 10 + 4500, 30);
  EXPECT_EQ(fake_.view.writes[ViewText::lblAutoStop].front(), L"3");
}

// A request makes a report in any case: a movement in the same pass does not cancel it.
TEST_F(RepeatedCaptureTest, ARequestIsHandledWhileThePointerMoves) {
  const std::uint32_t start = Capture(40, [this] {
    if (fake_.system.sleeps != 20) return;
    ++fake_.state.CapturePoint.x;
    fake_.state.RefreshRequest = 1;
  });
  EXPECT_THAT(reportTicks_, ElementsAre(start + 60, start + 200));
  EXPECT_EQ(fake_.state.RefreshRequest, 0);
}

}  // namespace
}  // namespace capture
