// The automatic stop of a capture after the pointer has rested.
#include <windows.h>

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "SettingsText.h"
#include "driver/GuiTest.h"
#include "driver/Keys.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Target.h"
#include "driver/Windows.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

using Clock = std::chrono::steady_clock;

// The tolerance for times of the program on a busy machine.
constexpr double kSlack = 0.45;
// Timers and ticks are coarse: a time may be shorter by this much.
constexpr double kShort = 0.1;

class AutoStopTest : public GuiTest {
 protected:
  static double SecondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
  }
};

TEST_F(AutoStopTest, CountsTheLastThreeSecondsDownAndStops) {
  const Fixture fixture("title=t static=的");
  const Program program({.conf = "auto stop = 1\nauto stop time = 5\n"});
  program.StartCapture();
  pointer::MoveTo(fixture["static"].Center());
  const auto rested = Clock::now();

  std::map<std::string, double> firstSeen;
  EXPECT_TRUE(WaitFor("the capture stops", [&](std::string& seen) {
    seen = program[ui::lblAutoStop].Text();
    firstSeen.try_emplace(seen, SecondsSince(rested));
    return !program.IsCapturing();
  }));
  const double stopped = SecondsSince(rested);

  ASSERT_EQ(firstSeen.size(), 4U);
  const std::map<std::string, double> expected = {{"3", 1.5}, {"2", 2.5}, {"1", 3.5}};
  for (const auto& [digit, time] : expected) {
    ASSERT_TRUE(firstSeen.contains(digit)) << digit;
    EXPECT_GT(firstSeen[digit], time - kShort) << digit;
    EXPECT_LT(firstSeen[digit], time + kSlack) << digit;
  }
  EXPECT_GT(stopped, 4.5 - kShort);
  EXPECT_LT(stopped, 4.5 + kSlack);
  EXPECT_EQ(program[ui::lblAutoStop].Text(), "");
}

TEST_F(AutoStopTest, MovingPointerDelaysTheCountdown) {
  const Program program({.conf = "auto stop = 1\nauto stop time = 2\n"});
  program.StartCapture();
  LONG x = 100;
  EXPECT_TRUE(Stays(
      "the capture goes on while the pointer moves",
      [&](std::string&) {
        pointer::MoveTo({x, 700});
        x = x == 100 ? 101 : 100;
        return program.IsCapturing();
      },
      Milliseconds(4000)));
}

TEST_F(AutoStopTest, LastDigitStaysWhenThePointerMoves) {
  const Program program({.conf = "auto stop = 1\nauto stop time = 5\n"});
  program.StartCapture();
  pointer::MoveTo({100, 700});
  ASSERT_TRUE(program[ui::lblAutoStop].TextBecomes("2"));
  pointer::MoveTo({140, 720});
  EXPECT_TRUE(program[ui::lblAutoStop].TextStays("2", Milliseconds(1300)));
  EXPECT_TRUE(program[ui::lblAutoStop].TextBecomes("3"));
}

TEST_F(AutoStopTest, WithoutATimeTheCaptureGoesOn) {
  const Program program({.conf = "auto stop = 1\nauto stop time = 0\n"});
  program.StartCapture();
  EXPECT_TRUE(Stays(
      "the capture goes on without a countdown",
      [&](std::string& seen) {
        seen = program[ui::lblAutoStop].Text();
        return program.IsCapturing() && seen.empty();
      },
      Milliseconds(2500)));
}

TEST_F(AutoStopTest, SwitchedOffShowsNoCountdown) {
  const Program program({.conf = "auto stop = 0\nauto stop time = 2\n"});
  program.StartCapture();
  EXPECT_TRUE(Stays(
      "the capture goes on without a countdown",
      [&](std::string& seen) {
        seen = program[ui::lblAutoStop].Text();
        return program.IsCapturing() && seen.empty();
      },
      Milliseconds(2500)));
}

TEST_F(AutoStopTest, SwitchingOffEndsTheCountdown) {
  const Program program({.conf = "auto stop = 1\nauto stop time = 5\n"});
  program.StartCapture();
  pointer::MoveTo({100, 700});
  ASSERT_TRUE(program[ui::lblAutoStop].TextBecomes("3"));
  program[ui::chkAutoStop].PressButton();
  EXPECT_TRUE(program[ui::lblAutoStop].TextBecomes("", Milliseconds(900)));
  EXPECT_TRUE(program[ui::cmdGo].TextStays("停止", Milliseconds(3500)));
}

TEST_F(AutoStopTest, BoxTakesEffectDuringTheCaptureAndIsSaved) {
  Program program({.conf = "auto stop = 0\nauto stop time = 1\n"});
  program.StartCapture();
  program[ui::chkAutoStop].PressButton();
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("開始"));
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "auto stop"), "1");
}

TEST_F(AutoStopTest, BoxThatIsClearedIsSavedToo) {
  Program program({.conf = "auto stop = 1\nauto stop time = 9\n"});
  program[ui::chkAutoStop].PressButton();
  ASSERT_TRUE(WaitFor("the box is clear",
                      [&](std::string&) { return !program[ui::chkAutoStop].IsChecked(); }));
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "auto stop"), "0");
}

TEST_F(AutoStopTest, AutoCloseHidesTheWindowThenSavesAndEnds) {
  const Program program({.conf = "auto stop = 1\nauto stop time = 2\nauto close = 1\n"
                                 "shiftx = 3\n"});
  program.StartCapture();
  pointer::MoveTo({100, 700});
  const auto rested = Clock::now();
  EXPECT_TRUE(
      WaitFor("the window is hidden", [&](std::string&) { return !program.Window().IsVisible(); }));
  const double hidden = SecondsSince(rested);
  EXPECT_GT(hidden, 2.5 - kShort);
  EXPECT_LT(hidden, 2.5 + kSlack);
  EXPECT_EQ(program.ConfLines().size(), 3U + 1U) << "written too early";

  EXPECT_EQ(program.Process().WaitForExit(), 0U);
  const double ended = SecondsSince(rested);
  EXPECT_GT(ended, 4.5 - kShort);
  EXPECT_LT(ended, 4.5 + 2 * kSlack);
  EXPECT_EQ(program.ConfLines().size(), 39U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "auto close"), "1");
}

TEST_F(AutoStopTest, StopByHandDoesNotClose) {
  for (const bool byKey : {false, true}) {
    const Program program({.conf = "auto stop = 1\nauto stop time = 60\nauto close = 1\n"});
    program.StartCapture();
    if (byKey) {
      keys::Stroke({VK_ESCAPE});
    } else {
      program[ui::cmdGo].PressButton();
    }
    ASSERT_TRUE(program[ui::cmdGo].TextBecomes("開始"));
    // Longer than the window is shown after the stop of a capture that closes the program.
    EXPECT_TRUE(Stays(
        "the program goes on",
        [&](std::string&) { return program.Process().IsRunning() && program.Window().IsVisible(); },
        Milliseconds(1800)))
        << (byKey ? "by key" : "by button");
  }
}

TEST_F(AutoStopTest, MissingSoundIsIgnored) {
  const Program program({.conf = "auto stop = 1\nauto stop time = 1\nchime = 1\n"
                                 "chime file = 無い音.wav\n"});
  program.StartCapture();
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("開始"));
  EXPECT_TRUE(Stays(
      "only the main window shows",
      [&](std::string&) { return VisibleWindows(program.Process().Id()).size() == 1; },
      Milliseconds(300)));
}

}  // namespace
}  // namespace gui
