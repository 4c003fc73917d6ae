#include "capture/StopKey.h"

#include <gtest/gtest.h>

#include "FakeCapture.h"
#include "capture/CaptureLoop.h"

namespace capture {
namespace {

constexpr std::int32_t kEsc = 27;

class StopKeyTest : public testing::Test {
 protected:
  StopKeyTest() {
    fake_.state.CaptureRunning = true;
    fake_.settings.continueCapture = 1;
    fake_.view.texts[ViewText::TopPane] = L"前";
  }
  void Press() { fake_.system.pressed.insert(kEsc); }

  FakeCapture fake_;
};

TEST_F(StopKeyTest, APressBetweenItemsCopiesTheFinishedReportInThePass) {
  Press();
  PollStopKeyBetweenItems(fake_.Context());
  fake_.view.texts[ViewText::TopPane] = L"終わった報告";
  EXPECT_EQ(fake_.system.clipboard, L"(before)");
  PollStopKey(fake_.Context());
  EXPECT_EQ(fake_.system.clipboard, L"終わった報告");
  EXPECT_EQ(fake_.view.texts[ViewText::lblMsg], L"上段 クリップボード転送完了");
  EXPECT_TRUE(fake_.state.CaptureRunning);
}

TEST_F(StopKeyTest, EachPressIsHandledOnce) {
  Press();
  PollStopKeyBetweenItems(fake_.Context());
  PollStopKeyBetweenItems(fake_.Context());
  PollStopKey(fake_.Context());
  fake_.system.clipboard = L"(after)";
  PollStopKey(fake_.Context());
  EXPECT_EQ(fake_.system.clipboard, L"(after)");
}

TEST_F(StopKeyTest, AKeptPressAndANewOneAreOneCopy) {
  Press();
  PollStopKeyBetweenItems(fake_.Context());
  Press();
  PollStopKey(fake_.Context());
  fake_.system.clipboard = L"(after)";
  PollStopKey(fake_.Context());
  EXPECT_EQ(fake_.system.clipboard, L"(after)");
}

TEST_F(StopKeyTest, WithoutContinueAPressBetweenItemsStopsAtOnce) {
  fake_.settings.continueCapture = 0;
  Press();
  PollStopKeyBetweenItems(fake_.Context());
  EXPECT_FALSE(fake_.state.CaptureRunning);
  EXPECT_FALSE(fake_.state.StopKeyKept);
  EXPECT_EQ(fake_.system.clipboard, L"(before)");
}

TEST_F(StopKeyTest, OfContinueOnlyOneCopies) {
  fake_.settings.continueCapture = 2;
  Press();
  PollStopKeyBetweenItems(fake_.Context());
  EXPECT_FALSE(fake_.state.CaptureRunning);
}

TEST_F(StopKeyTest, APressOfTheCaptureBeforeIsForgotten) {
  fake_.state = {};
  fake_.state.StopKeyKept = true;
  fake_.settings.clipboard = 4;
  fake_.system.onSleep = [this] { fake_.state.CaptureRunning = false; };
  RunCapture(
      fake_.Context(), [] {}, L"");
  EXPECT_EQ(fake_.system.clipboard, L"(before)");
}

// During a list the pointer rests; the loop handles the press right after the report.
TEST_F(StopKeyTest, TheLoopHandlesAPressFromInsideTheReport) {
  fake_.state = {};
  fake_.state.CapturePoint = {5, 6};
  fake_.settings.clipboard = 4;
  int reports = 0;
  const auto compose = [&] {
    ++reports;
    Press();
    PollStopKeyBetweenItems(fake_.Context());
    fake_.view.texts[ViewText::TopPane] = L"新しい報告";
  };
  fake_.system.onSleep = [this] {
    if (fake_.system.sleeps == 1) fake_.state.TargetWindow = WindowNumber(77);
    if (fake_.system.sleeps == 30) fake_.state.CaptureRunning = false;
  };
  RunCapture(fake_.Context(), compose, L"");
  EXPECT_EQ(reports, 1);
  EXPECT_EQ(fake_.system.clipboard, L"新しい報告");
}

}  // namespace
}  // namespace capture
