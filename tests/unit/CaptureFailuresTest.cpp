// Captures in which calls fail.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "CaptureLoopFixture.h"

namespace capture {
namespace {

using testing::IsSupersetOf;

class CaptureFailuresTest : public CaptureLoopFixture {};

TEST_F(CaptureFailuresTest, NothingThatFailsEndsACapture) {
  fake_.settings.autoStop = 1;
  fake_.settings.autoStopTime = 1;
  fake_.settings.shift = 1;
  fake_.settings.hint = 1;
  fake_.settings.actionTest = 1;
  fake_.system.failing = true;
  fake_.view.failing = true;
  compose_ = [] { throw std::runtime_error("the report fails"); };
  Run(150, [this](int) { fake_.state.RefreshRequest = 1; });
  EXPECT_EQ(fake_.system.sleeps, 150);
  EXPECT_EQ(reports_, 149);  // each in the pass after its request
  EXPECT_EQ(fake_.state.RunState, L"");
  EXPECT_FALSE(fake_.state.CaptureRunning);
}

// The calls of a capture that uses many features and closes the program, while every call of that
// name fails.
std::vector<std::string> CallsWithFailing(const std::string& name) {
  FakeCapture fake;
  fake.system.failingCall = fake.view.failingCall = name;
  fake.settings.shift = 1;
  fake.settings.autoStop = 1;
  fake.settings.autoStopTime = 1;
  fake.settings.autoClose = 1;
  fake.settings.clipboard = 2;
  fake.system.onSleep = [&fake] {
    fake.state.RefreshRequest = 1;
    if (fake.system.sleeps > 500)
      fake.state.CaptureRunning = false;  // it did not stop automatically
  };
  const auto compose = [&fake, &name] {
    fake.trace.push_back("report");
    if (name == "report") throw std::runtime_error("the report fails");
  };
  RunCapture(fake.Context(), compose, L"");
  return fake.trace;
}

TEST(FailingCallTest, LeavesEveryOtherCallAsItIs) {
  const std::vector<std::string> undisturbed = CallsWithFailing("");
  const std::set<std::string> names(undisturbed.begin(), undisturbed.end());
  EXPECT_THAT(names, IsSupersetOf({"go button", "place markers", "report", "sleep 10", "pump",
                                   "text", "chime", "hide window", "clipboard", "Timer_End on"}));
  for (const std::string& name : names) {
    EXPECT_TRUE(CallsWithFailing(name) == undisturbed) << name;
  }
}

TEST_F(CaptureFailuresTest, WithoutAClockItStillReportsAndStops) {
  fake_.system.failingCall = "tick count";
  fake_.system.onSleep = [this] {
    fake_.state.RefreshRequest = 1;
    if (fake_.system.sleeps == 7) fake_.system.pressed.insert(kEsc);
    ASSERT_LT(fake_.system.sleeps, 100);
  };
  Capture();
  EXPECT_EQ(fake_.system.sleeps, 7);
  EXPECT_EQ(reports_, 6);
}

TEST_F(CaptureFailuresTest, AFailingReportIsNotRepeatedInEveryPass) {
  compose_ = [] { throw std::runtime_error("the report fails"); };
  Run(100);
  EXPECT_EQ(reports_, 1);
}

}  // namespace
}  // namespace capture
