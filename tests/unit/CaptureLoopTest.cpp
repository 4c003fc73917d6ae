#include "capture/CaptureLoop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "FakeCapture.h"

namespace capture {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;
using testing::SizeIs;

constexpr std::int32_t kEsc = 27;
constexpr std::int32_t kCtrl = 17;
constexpr HWND kNone = nullptr;

class CaptureLoopTest : public testing::Test {
 protected:
  CaptureLoopTest() { fake_.state.CapturePoint = {50, 60}; }

  // Runs a capture of so many passes; inPass is called while each pass sleeps, counted from 1.
  void Run(int passes, std::function<void(int)> inPass = {}) {
    fake_.system.onSleep = [this, passes, inPass = std::move(inPass)] {
      if (fake_.system.sleeps == 1) fake_.state.TargetWindow = target_;
      if (inPass) inPass(fake_.system.sleeps);
      if (fake_.system.sleeps >= passes) fake_.state.CaptureRunning = false;
    };
    loop_.RunCapture();
  }

  std::wstring Text(ViewText part) { return fake_.view.texts[part]; }
  std::vector<std::wstring>& Writes(ViewText part) { return fake_.view.writes[part]; }

  void Compose() {
    ++reports_;
    reportTicks_.push_back(fake_.system.now);
    if (compose_) compose_();
  }

  FakeCapture fake_;
  HWND target_ = WindowNumber(77);
  int reports_ = 0;
  std::vector<std::uint32_t> reportTicks_;
  std::function<void()> compose_;
  CaptureLoop loop_{fake_.Context(), [this] { Compose(); }, L""};
};

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
  loop_.RunCapture();
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
    loop_.RunCapture();
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
  loop_.RunCapture();
  EXPECT_EQ(fake_.system.sleeps, 1);
  EXPECT_THAT(fake_.trace, Contains("Timer_End on"));
  EXPECT_EQ(fake_.state.RunState, L"");
}

TEST_F(CaptureLoopTest, OtherwiseTheEndTimerStaysOff) {
  Run(2);
  EXPECT_THAT(fake_.trace, Not(Contains("Timer_End on")));
}

// Debug mode.

TEST_F(CaptureLoopTest, FirstWordOfTheCommandLineTurnsDebugModeOnAtEveryStart) {
  CaptureLoop debugLoop(
      fake_.Context(), [] {}, L"DEBUG no_start");
  fake_.system.onSleep = [this] { fake_.state.CaptureRunning = false; };
  debugLoop.RunCapture();
  EXPECT_TRUE(fake_.state.DebugMode);
  fake_.state.DebugMode = false;
  debugLoop.RunCapture();
  EXPECT_TRUE(fake_.state.DebugMode);
  fake_.state.DebugMode = false;
  loop_.RunCapture();
  EXPECT_FALSE(fake_.state.DebugMode);
}

// The stop hint.

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

// Markers.

TEST_F(CaptureLoopTest, PlacesTheMarkersInEveryPassWhileShifted) {
  fake_.settings.shift = 1;
  Run(4);
  ASSERT_EQ(fake_.view.markersPlaced.size(), 4U);
  EXPECT_EQ(fake_.view.markersPlaced[2].x, 50);
  EXPECT_EQ(fake_.view.markersPlaced[2].y, 60);
}

TEST_F(CaptureLoopTest, NeverPlacesThemWhileNotShifted) {
  Run(4);
  EXPECT_THAT(fake_.view.markersPlaced, IsEmpty());
}

TEST_F(CaptureLoopTest, ShowsTheMarkersOnceASecond) {
  fake_.settings.shift = 1;
  std::vector<int> shownIn;
  int before = 0;
  Run(205, [&](int pass) {
    if (fake_.view.markersShown > before) shownIn.push_back(pass);
    before = fake_.view.markersShown;
  });
  // At the start, then in the first pass that has a tick, then after more than 1000 ms.
  EXPECT_THAT(shownIn, ElementsAre(1, 2, 103, 204));
}

// Reports.

TEST_F(CaptureLoopTest, ReportsOnceThePointHasRested) {
  Run(20);
  EXPECT_EQ(reports_, 1);
  // The first pass ends at 100010, the point has rested 50 ms when the one that ended at 100060 is
  // over.
  EXPECT_EQ(reportTicks_[0], 100'060U);
  EXPECT_EQ(fake_.state.LastReportTick, 100'060U);
  EXPECT_EQ(fake_.state.ReportState, kReported);
}

TEST_F(CaptureLoopTest, NotesTheTickBeforeTheReport) {
  compose_ = [this] { fake_.system.now += 5000; };
  Run(20);
  EXPECT_EQ(reports_, 1);
  EXPECT_EQ(fake_.state.LastReportTick, 100'060U);
}

TEST_F(CaptureLoopTest, ReportsAgainEveryThirtySeconds) {
  Run(6600);
  ASSERT_EQ(reports_, 3);
  EXPECT_EQ(reportTicks_[1] - reportTicks_[0], 30'000U);
  EXPECT_EQ(reportTicks_[2] - reportTicks_[1], 30'000U);
}

TEST_F(CaptureLoopTest, ARequestReportsInTheNextPass) {
  Run(40, [this](int pass) {
    if (pass == 30) fake_.state.RefreshRequest = 1;
    if (pass == 31) {
      EXPECT_EQ(fake_.state.RefreshRequest, 0);
    }
  });
  EXPECT_EQ(reports_, 2);
  EXPECT_EQ(reportTicks_[1], 100'300U);
}

TEST_F(CaptureLoopTest, SaysThatItIsCapturing) {
  compose_ = [this] { EXPECT_EQ(Text(ViewText::lblMsg), L"取得中・・・・"); };
  Run(10, [this](int pass) {
    if (pass == 9) {
      EXPECT_EQ(Text(ViewText::lblMsg), L"");
    }
  });
  ASSERT_EQ(reports_, 1);
}

TEST_F(CaptureLoopTest, KeepsAMessageThatTheReportLeft) {
  compose_ = [this] { fake_.view.SetText(ViewText::lblMsg, L"何か"); };
  Run(10, [this](int pass) {
    if (pass == 9) {
      EXPECT_EQ(Text(ViewText::lblMsg), L"何か");
    }
  });
}

TEST_F(CaptureLoopTest, PumpsBetweenTheMessageAndTheReport) {
  std::size_t pumpsBefore = 0;
  compose_ = [&] { pumpsBefore = fake_.trace.size(); };
  Run(10);
  ASSERT_GT(pumpsBefore, 2U);
  EXPECT_EQ(fake_.trace[pumpsBefore - 1], "pump");
  EXPECT_EQ(fake_.trace[pumpsBefore - 2], "text");
}

class OwnWindowTest : public CaptureLoopTest {
 protected:
  OwnWindowTest() {
    fake_.state.TopTexts[2] = L"kept";
    fake_.state.BottomTexts[1] = L"kept too";
    for (const ViewText part : kCleared) fake_.view.texts[part] = L"old";
    fake_.view.texts[ViewText::txtWin3] = L"old";
  }
  void ExpectCleared() {
    EXPECT_EQ(reports_, 0);
    EXPECT_EQ(fake_.state.ReportState, kReported);
    for (const ViewText part : kCleared) EXPECT_EQ(Text(part), L"");
    // The texts come back with the next click on "detail".
    EXPECT_EQ(Text(ViewText::txtWin3), L"old");
    EXPECT_EQ(fake_.state.TopTexts[2], L"kept");
    EXPECT_EQ(fake_.state.BottomTexts[1], L"kept too");
    EXPECT_EQ(fake_.state.LastReportTick, 100'000U);
  }

  static constexpr ViewText kCleared[] = {
      ViewText::txthWnd,  ViewText::txtWin0, ViewText::txtWin1,   ViewText::txtWin2,
      ViewText::txtCount, ViewText::TopPane, ViewText::BottomPane};
};

TEST_F(OwnWindowTest, IsNotReportedOn) {
  target_ = WindowNumber(10);
  Run(10);
  ExpectCleared();
}

TEST_F(OwnWindowTest, NorItsControls) {
  fake_.system.parents[target_] = WindowNumber(10);
  Run(10);
  ExpectCleared();
}

TEST_F(OwnWindowTest, NorWhatIsDeeperInsideOrOwned) {
  fake_.system.parents[target_] = WindowNumber(12);
  fake_.system.parents[WindowNumber(12)] = WindowNumber(10);
  Run(10);
  ExpectCleared();
}

// The tool tip.

class HintTest : public CaptureLoopTest {
 protected:
  HintTest() {
    fake_.settings.hint = 1;
    fake_.system.tooltip = L"ヒント";
  }
};

TEST_F(HintTest, IsShownFromHalfASecondOfRestToThree) {
  std::vector<std::uint32_t> asked;
  int before = 0;
  Run(400, [&](int) {
    if (fake_.system.tooltipsAsked > before) asked.push_back(fake_.system.now - 10);
    before = fake_.system.tooltipsAsked;
  });
  // Rest counts from 100010; 501 ms is first passed at 510, and more than 100 ms lie between two.
  ASSERT_GE(asked.size(), 2U);
  EXPECT_EQ(asked.front(), 100'520U);
  EXPECT_EQ(asked[1], 100'630U);
  EXPECT_LT(asked.back(), 103'010U);
  EXPECT_GE(asked.back(), 102'900U);
  EXPECT_EQ(Text(ViewText::txtStatus), L"ヒント");
}

TEST_F(HintTest, AnEmptyOneLeavesTheStatusText) {
  fake_.system.tooltip = L"";
  fake_.view.texts[ViewText::txtStatus] = L"before";
  Run(100);
  EXPECT_GT(fake_.system.tooltipsAsked, 0);
  EXPECT_EQ(Text(ViewText::txtStatus), L"before");
}

TEST_F(HintTest, IsNotAskedForOtherwise) {
  fake_.settings.hint = 0;
  Run(100);
  EXPECT_EQ(fake_.system.tooltipsAsked, 0);
}

// Auto stop.

class AutoStopTest : public CaptureLoopTest {
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
    loop_.RunCapture();
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
  // Pressed when the stop has been decided.
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
    loop_.RunCapture();
    EXPECT_THAT(fake_.trace, Not(Contains("chime")));
    EXPECT_THAT(fake_.trace, Not(Contains("hide window")));
    EXPECT_THAT(fake_.trace, Not(Contains("Timer_End on")));
  }
}

// Keys.

TEST_F(CaptureLoopTest, TheHotKeyStops) {
  fake_.system.onSleep = [this] {
    if (fake_.system.sleeps == 7) fake_.system.pressed.insert(kEsc);
    ASSERT_LT(fake_.system.sleeps, 100);
  };
  loop_.RunCapture();
  EXPECT_EQ(fake_.system.sleeps, 7);
}

TEST_F(CaptureLoopTest, OrCopiesAndGoesOn) {
  fake_.settings.continueCapture = 1;
  fake_.settings.clipboard = 4;
  fake_.view.texts[ViewText::TopPane] = L"上の文字";
  Run(20, [this](int pass) {
    if (pass == 3) fake_.system.pressed.insert(kEsc);
    if (pass == 4) {
      EXPECT_EQ(Text(ViewText::lblMsg), L"上段 クリップボード転送完了");
    }
  });
  EXPECT_EQ(fake_.system.sleeps, 20);
  EXPECT_EQ(fake_.system.clipboard, L"上の文字");
}

TEST_F(CaptureLoopTest, TheActionKeyActsOnceASecond) {
  fake_.settings.actionTest = 3;
  fake_.system.down.insert(kCtrl);
  Run(300);
  EXPECT_THAT(fake_.system.actions, ElementsAre(3, 3, 3));
  EXPECT_EQ(fake_.system.actionTicks[1] - fake_.system.actionTicks[0], 1010U);
  EXPECT_EQ(fake_.system.actionPoint.x, 50);
}

TEST_F(CaptureLoopTest, TheSecondCountsFromTheEndOfTheAction) {
  fake_.settings.actionTest = 1;
  fake_.system.down.insert(kCtrl);
  // A message box that stays open for a while.
  fake_.system.onAction = [this] { fake_.system.now += 1500; };
  Run(110);
  ASSERT_THAT(fake_.system.actionTicks, SizeIs(2));
  EXPECT_EQ(fake_.system.actionTicks[1] - fake_.system.actionTicks[0], 2510U);
}

TEST_F(CaptureLoopTest, AnActionThatFailsIsNotRepeatedInEveryPass) {
  fake_.settings.actionTest = 1;
  fake_.system.down.insert(kCtrl);
  fake_.system.onAction = [] { throw std::runtime_error("the action fails"); };
  Run(50);
  EXPECT_THAT(fake_.system.actions, SizeIs(1));
}

TEST_F(CaptureLoopTest, TheActionKeyNeedsASetting) {
  fake_.system.down.insert(kCtrl);
  Run(50);
  EXPECT_THAT(fake_.system.actions, IsEmpty());
}

TEST_F(CaptureLoopTest, TheActionKeyIsTheOneOfTheState) {
  fake_.settings.actionTest = 1;
  fake_.state.ActionKeyCode = L"18";
  fake_.system.down.insert(kCtrl);
  Run(5);
  EXPECT_THAT(fake_.system.actions, IsEmpty());
}

// What the end does with the texts.

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

// Failures.

TEST_F(CaptureLoopTest, NothingThatFailsEndsACapture) {
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
  EXPECT_EQ(reports_, 149);  // each in the pass after the one that asks for it
  EXPECT_EQ(fake_.state.RunState, L"");
  EXPECT_FALSE(fake_.state.CaptureRunning);
}

// The calls of a capture that does much and closes the program, while every call of that name
// fails.
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
    if (fake.system.sleeps > 500) fake.state.CaptureRunning = false;  // it did not stop by itself
  };
  const auto compose = [&fake, &name] {
    fake.trace.push_back("report");
    if (name == "report") throw std::runtime_error("the report fails");
  };
  CaptureLoop(fake.Context(), compose, L"").RunCapture();
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

TEST_F(CaptureLoopTest, WithoutAClockItStillReportsAndStops) {
  fake_.system.failingCall = "tick count";
  fake_.system.onSleep = [this] {
    fake_.state.RefreshRequest = 1;
    if (fake_.system.sleeps == 7) fake_.system.pressed.insert(kEsc);
    ASSERT_LT(fake_.system.sleeps, 100);
  };
  loop_.RunCapture();
  EXPECT_EQ(fake_.system.sleeps, 7);
  EXPECT_EQ(reports_, 6);
}

TEST_F(CaptureLoopTest, AFailingReportIsNotRepeatedInEveryPass) {
  compose_ = [] { throw std::runtime_error("the report fails"); };
  Run(100);
  EXPECT_EQ(reports_, 1);
}

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
