// A capture from its start to its end.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CaptureLoopFixture.h"

namespace capture {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::Not;

class CaptureLoopTest : public CaptureLoopFixture {};

TEST_F(CaptureLoopTest, StateBeforeTheFirstCapture) {
  const CaptureState state;
  EXPECT_FALSE(state.CaptureRunning);
  EXPECT_EQ(state.RunState, L"");
  EXPECT_FALSE(state.DebugMode);
  EXPECT_EQ(state.CapturePoint.x, 0);
  EXPECT_EQ(state.CapturePoint.y, 0);
  EXPECT_EQ(state.TargetWindow, kNone);
  EXPECT_EQ(state.TopTexts.size(), 3U);
  EXPECT_EQ(state.BottomTexts.size(), 4U);
}

TEST_F(CaptureLoopTest, StartsInThisOrder) {
  bool running = false;
  std::wstring runState;
  HWND targetAtStart = kNone;
  std::wstring message;
  fake_.system.onSleep = [&] {
    running = fake_.state.CaptureRunning;
    runState = fake_.state.RunState;
    targetAtStart = fake_.state.TargetWindow;
    message = Text(ViewText::lblMsg);
    EXPECT_EQ(fake_.view.goCaption, L"停止");
    EXPECT_EQ(fake_.view.goTip, L"取得停止");
    EXPECT_TRUE(fake_.view.shown[ViewText::lblStatus]);
    fake_.state.CaptureRunning = false;
  };
  Capture();
  EXPECT_TRUE(running);
  EXPECT_EQ(runState, L"Go");
  EXPECT_EQ(targetAtStart, WindowNumber(11));  // the button's
  EXPECT_EQ(message, L"Go");
  const std::vector<std::string> start(fake_.trace.begin(), fake_.trace.begin() + 7);
  EXPECT_THAT(start, ElementsAre("go button", "show part", "focus top pane", "Timer_MsgLoop off",
                                 "Timer2 on", "text", "show markers"));
  EXPECT_EQ(fake_.state.CaptureStartTick, 100'000U);
}

TEST_F(CaptureLoopTest, DoesNotStartTwice) {
  for (const std::wstring_view state : {L"Go", L"Unload"}) {
    fake_.state.RunState = state;
    Capture();
    EXPECT_THAT(fake_.trace, IsEmpty());
    EXPECT_FALSE(fake_.state.CaptureRunning);
  }
}

TEST_F(CaptureLoopTest, EndsInThisOrder) {
  fake_.settings.clipboard = 4;  // so that the end writes no message
  Run(1);
  // Timer2 may still tick in the pump, before it is switched off.
  const std::vector<std::string> end(fake_.trace.end() - 7, fake_.trace.end());
  EXPECT_THAT(end, ElementsAre("go button", "unload markers", "hide part", "Timer_MsgLoop on",
                               "pump", "Timer2 off", "text"));
  EXPECT_EQ(fake_.view.goCaption, L"開始");
  EXPECT_EQ(fake_.view.goTip, L"Velmora列取得開始");
  EXPECT_FALSE(fake_.view.shown[ViewText::lblStatus]);
  EXPECT_EQ(fake_.state.RunState, L"");
  EXPECT_EQ(Text(ViewText::lblStatus), L"ESCで停止");
}

TEST_F(CaptureLoopTest, SleepsThenPumpsInEveryPass) {
  Run(3);
  std::vector<std::string> loop;
  for (const std::string& call : fake_.trace) {
    if (call == "pump" || call.starts_with("sleep")) loop.push_back(call);
  }
  EXPECT_THAT(loop, ElementsAre("sleep 10", "pump", "pump", "sleep 10", "pump", "pump", "sleep 10",
                                "pump", "pump", "pump"));
}

TEST_F(CaptureLoopTest, LeavesWhenTheProgramIsToEnd) {
  fake_.system.onSleep = [this] { fake_.state.RunState = kUnload; };
  Capture();
  EXPECT_EQ(fake_.system.sleeps, 1);
  EXPECT_THAT(fake_.trace, Contains("Timer_End on"));
  EXPECT_EQ(fake_.state.RunState, L"");
}

TEST_F(CaptureLoopTest, WithoutUnloadTheEndTimerStaysOff) {
  Run(2);
  EXPECT_THAT(fake_.trace, Not(Contains("Timer_End on")));
}

TEST_F(CaptureLoopTest, FirstWordOfTheCommandLineTurnsDebugModeOnAtEveryStart) {
  fake_.system.onSleep = [this] { fake_.state.CaptureRunning = false; };
  Capture(L"DEBUG no_start");
  EXPECT_TRUE(fake_.state.DebugMode);
  fake_.state.DebugMode = false;
  Capture(L"DEBUG no_start");
  EXPECT_TRUE(fake_.state.DebugMode);
  fake_.state.DebugMode = false;
  Capture();
  EXPECT_FALSE(fake_.state.DebugMode);
}

TEST_F(CaptureLoopTest, RewritesTheStopHintInEveryPass) {
  Run(3);
  EXPECT_THAT(Writes(ViewText::lblStatus),
              ElementsAreArray(std::vector<std::wstring>(4, L"ESCで停止")));
}

TEST_F(CaptureLoopTest, TheHintNamesTheActionKey) {
  fake_.settings.actionTest = 2;
  Run(1);
  EXPECT_EQ(Text(ViewText::lblStatus), L"ESCで停止\r\nCtrl で Select 1 Test");
}

TEST_F(CaptureLoopTest, NoHintWhileTheKeyCopies) {
  fake_.settings.continueCapture = 1;
  Run(2);
  EXPECT_THAT(Writes(ViewText::lblStatus), ElementsAre(L"", L"", L"ESCで停止"));
}

TEST_F(CaptureLoopTest, WithoutAHotKeyThePassesLeaveTheHintAlone) {
  fake_.settings.hotkey = L"";
  Run(2);
  // Only the end of the capture writes it.
  EXPECT_THAT(Writes(ViewText::lblStatus), ElementsAre(L"で停止"));
}

TEST_F(CaptureLoopTest, DebugModeKeepsTheHintFromBeingRewritten) {
  fake_.state.DebugMode = true;
  Run(3);
  EXPECT_THAT(Writes(ViewText::lblStatus), ElementsAre(L"ESCで停止"));
}

struct EndCase {
  std::int32_t clipboard;
  std::wstring_view message;
  std::wstring_view copied;
};

class EndTest : public CaptureLoopTest, public testing::WithParamInterface<EndCase> {};

TEST_P(EndTest, LeavesTextsAsTheSettingSays) {
  fake_.settings.clipboard = GetParam().clipboard;
  fake_.view.texts[ViewText::TopPane] = L"top";
  fake_.view.texts[ViewText::BottomPane] = L"bottom";
  Run(1);
  EXPECT_EQ(Text(ViewText::lblMsg), GetParam().message);
  EXPECT_EQ(fake_.system.clipboard, GetParam().copied);
}

INSTANTIATE_TEST_SUITE_P(Clipboard, EndTest,
                         testing::Values(EndCase{0, L"テキスト選択", L"(before)"},
                                         EndCase{1, L"クリックでクリップボード転送", L"(before)"},
                                         EndCase{2, L"上段 クリップボード転送完了", L"top"},
                                         EndCase{3, L"下段 クリップボード転送完了", L"bottom"},
                                         EndCase{4, L"Go", L"(before)"},
                                         EndCase{-1, L"Go", L"(before)"}));

TEST_F(CaptureLoopTest, GoesThroughItsStates) {
  std::vector<std::pair<std::wstring, bool>> states;
  const auto note = [&] {
    const std::pair now{fake_.state.RunState, fake_.state.CaptureRunning};
    if (states.empty() || states.back() != now) states.push_back(now);
  };
  note();
  fake_.system.onPump = note;
  Run(3);
  note();
  const std::vector<std::pair<std::wstring, bool>> expected{
      {L"", false}, {L"Go", true}, {L"Go", false}, {L"", false}};
  EXPECT_EQ(states, expected);
}

}  // namespace
}  // namespace capture
