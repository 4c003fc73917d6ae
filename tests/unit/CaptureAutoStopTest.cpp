// Captures that stop automatically.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "CaptureLoopFixture.h"

namespace capture {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class CaptureAutoStopTest : public CaptureLoopFixture {};

class AutoStopTest : public CaptureAutoStopTest {
 protected:
  AutoStopTest() {
    fake_.settings.autoStop = 1;
    fake_.settings.autoStopTime = 5;
  }
  void RunUntilItStops() {
    fake_.system.onSleep = [this] {
      if (fake_.system.sleeps == 1) fake_.state.TargetWindow = target_;
      ASSERT_LT(fake_.system.sleeps, 2000) << "does not stop";
    };
    Capture();
  }
};

TEST_F(AutoStopTest, CountsThreeTwoOneAndStops) {
  RunUntilItStops();
  std::vector<std::wstring> digits = Writes(ViewText::lblAutoStop);
  digits.erase(std::unique(digits.begin(), digits.end()), digits.end());
  EXPECT_THAT(digits, ElementsAre(L"3", L"2", L"1", L""));
  // 4.5 s of rest, counted from the end of the first pass.
  EXPECT_NEAR(fake_.system.now, 100'010 + 4500, 30);
  EXPECT_EQ(fake_.system.chimeFile, L"chimes.wav");
}

TEST_F(AutoStopTest, TheRestOfThePassStillRuns) {
  fake_.settings.continueCapture = 1;
  fake_.settings.actionTest = 1;
  fake_.settings.clipboard = 4;  // so that the end copies nothing
  fake_.view.texts[ViewText::TopPane] = L"上の文字";
  int lastPass = 0;
  // Pressed after the stop was decided.
  fake_.system.onChime = [&] {
    lastPass = fake_.system.sleeps;
    fake_.system.pressed.insert(kEsc);
    fake_.system.down.insert(kCtrl);
  };
  RunUntilItStops();
  EXPECT_EQ(fake_.system.sleeps, lastPass);
  EXPECT_EQ(fake_.system.clipboard, L"上の文字");
  EXPECT_EQ(Text(ViewText::lblMsg), L"上段 クリップボード転送完了");
  EXPECT_THAT(fake_.system.actions, ElementsAre(1));
}

TEST_F(AutoStopTest, WithoutAChimeItIsSilent) {
  fake_.settings.chime = 0;
  RunUntilItStops();
  EXPECT_THAT(fake_.trace, Not(Contains("chime")));
}

TEST_F(AutoStopTest, TheDigitStaysWhenThePointerMovesAgain) {
  Run(400, [this](int pass) {
    if (pass == 200) {
      ASSERT_EQ(Text(ViewText::lblAutoStop), L"3");
      fake_.state.CapturePoint.x += 5;
    }
    if (pass == 300) {
      EXPECT_EQ(Text(ViewText::lblAutoStop), L"3");
    }
  });
}

TEST_F(AutoStopTest, CountsTheRestNotTheCapture) {
  Run(1000, [this](int) { ++fake_.state.CapturePoint.x; });
  EXPECT_EQ(fake_.system.sleeps, 1000);
  EXPECT_THAT(fake_.trace, Not(Contains("chime")));
}

TEST_F(AutoStopTest, NeedsATime) {
  fake_.settings.autoStopTime = 0;
  Run(1000);
  EXPECT_EQ(fake_.system.sleeps, 1000);
  for (const std::wstring& text : Writes(ViewText::lblAutoStop)) EXPECT_EQ(text, L"");
}

TEST_F(AutoStopTest, IsEmptiedInEveryPassWhenOff) {
  fake_.settings.autoStop = 0;
  fake_.view.texts[ViewText::lblAutoStop] = L"2";
  Run(5);
  EXPECT_THAT(Writes(ViewText::lblAutoStop), ElementsAre(L"", L"", L"", L"", L""));
}

TEST_F(AutoStopTest, ClosesTheProgramWhenAsked) {
  fake_.settings.autoClose = 1;
  fake_.system.onChime = [this] {
    EXPECT_EQ(Text(ViewText::lblAutoStop), L"");
    EXPECT_TRUE(fake_.state.CaptureRunning);
    EXPECT_EQ(fake_.state.RunState, kGo);
  };
  RunUntilItStops();
  const auto chime = std::ranges::find(fake_.trace, "chime");
  ASSERT_NE(chime, fake_.trace.end());
  const std::vector<std::string> closing(chime - 2, chime + 4);
  EXPECT_THAT(closing,
              ElementsAre("text", "pump", "chime", "sleep 1000", "hide window", "sleep 2000"));
  EXPECT_THAT(fake_.trace, Contains("Timer_End on"));
  EXPECT_EQ(fake_.state.RunState, L"");
}

TEST_F(AutoStopTest, AStopByHandNeitherChimesNorCloses) {
  fake_.settings.autoClose = 1;
  for (const bool byKey : {false, true}) {
    fake_.system.onSleep = [&, before = fake_.system.sleeps] {
      ASSERT_LT(fake_.system.sleeps, before + 200) << "does not stop";
      if (fake_.system.sleeps < before + 100) return;
      if (byKey) fake_.system.pressed.insert(kEsc);
      if (!byKey) fake_.state.CaptureRunning = false;
    };
    Capture();
    EXPECT_THAT(fake_.trace, Not(Contains("chime")));
    EXPECT_THAT(fake_.trace, Not(Contains("hide window")));
    EXPECT_THAT(fake_.trace, Not(Contains("Timer_End on")));
  }
}

}  // namespace
}  // namespace capture
