// A list that takes minutes to read: the pointer may leave it at any time.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>

#include "ListFixture.h"
#include "driver/Clipboard.h"
#include "driver/GuiTest.h"
#include "driver/Keys.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Target.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

using testing::EndsWith;

constexpr int kRows = 100'000;
const std::string kOfAll = "/" + std::to_string(kRows);

class HugeListTest : public GuiTest {
 protected:
  HugeListTest() {
    SetWindowPos(GetAncestor(list_.Handle(), GA_ROOT), HWND_TOPMOST, 20, 20, 420, 320,
                 SWP_NOACTIVATE | SWP_SHOWWINDOW);
    SetWindowPos(list_.Handle(), HWND_TOP, 0, 0, 400, 280, SWP_NOACTIVATE | SWP_SHOWWINDOW);
  }

  // Returns once rows are arriving.
  void BeginReading(const Program& program) const {
    Require(WaitFor("the list is under that point", [&](std::string&) {
      return WindowFromPoint(list_.Center()) == list_.Handle();
    }));
    pointer::MoveTo(list_.Center());
    Require(WaitFor("the list is being read", [&](std::string& seen) {
      seen = program[ui::txtCount].Text();
      return seen.ends_with(kOfAll);
    }));
  }

  const cross::ListFixture fixture_{cross::Bits::k32,
                                    "deadline=90 ownerdata=many:" + std::to_string(kRows)};
  const Control list_{fixture_["ownerdata"], "the list"};
};

TEST_F(HugeListTest, YieldsToTheNextReportAtOnce) {
  const Fixture other("static=次 button=前 place=600,400,480,200");
  const Program program;
  program.MoveWindowTo(820, 20, 420, 360);
  program.StartCapture();
  const auto timeToReport = [&](const char* kind, const char* text) {
    const Control target = other[kind];
    const auto start = std::chrono::steady_clock::now();
    pointer::MoveTo(target.Center());
    EXPECT_TRUE(program[ui::txthWnd].TextBecomes(target.HandleText()));
    EXPECT_TRUE(program.TopPane().TextBecomes(text));
    return std::chrono::steady_clock::now() - start;
  };
  // The same on an idle program, the slowest of some, so that a busy machine affects both sides.
  timeToReport("button", "前");
  auto usual = std::chrono::steady_clock::duration::zero();
  for (int i = 0; i < 3; ++i) {
    usual = std::max(usual, timeToReport("static", "次"));
    usual = std::max(usual, timeToReport("button", "前"));
  }
  BeginReading(program);
  EXPECT_LT(timeToReport("static", "次"), 2 * usual);
}

TEST_F(HugeListTest, KeepsTheRowsThatWereReadAndMarksTheEnd) {
  const Program program;
  program.MoveWindowTo(820, 20, 420, 460);
  program.StartCapture();
  BeginReading(program);
  // Repeatedly, so that no other report replaces the text.
  LONG step = 0;
  std::string text;
  EXPECT_TRUE(WaitFor("the text ends with the mark", [&](std::string& seen) {
    step = (step + 1) % 40;
    pointer::MoveTo({600 + step, 700});
    seen = text = program.BottomPane().Text();
    return seen.ends_with("\r\n・・・中断・・・");
  }));
  const std::string count = program[ui::txtCount].Text();
  ASSERT_THAT(count, EndsWith(kOfAll));
  EXPECT_EQ(std::to_string(std::count(text.begin(), text.end(), '\n')),
            count.substr(0, count.size() - kOfAll.size()));
}

TEST_F(HugeListTest, ClosingInTheMiddleEndsAtOnceAndSavesNothing) {
  const Program program({.conf = "shiftx = 9\n"});
  program.MoveWindowTo(820, 20, 420, 460);
  program.StartCapture();
  BeginReading(program);
  program.Close();
  EXPECT_EQ(program.Process().WaitForExit(Milliseconds(1500)), 0U);
  EXPECT_EQ(program.ConfBytes(), "shiftx = 9\r\n");
}

TEST_F(HugeListTest, LeavesPositionButtonsAndStopKeyAlive) {
  const Program program({.conf = "hotkey = ESC\n"});
  program.MoveWindowTo(820, 20, 420, 460);
  program.StartCapture();
  BeginReading(program);
  const std::string count = program[ui::txtCount].Text();
  const POINT at = list_.Center();
  pointer::MoveTo({at.x + 3, at.y + 5});
  EXPECT_TRUE(program[ui::lblMousePos].TextBecomes(" " + std::to_string(at.x + 3) + "-" +
                                                   std::to_string(at.y + 5)));
  EXPECT_TRUE(WaitFor("the reading goes on", [&](std::string& seen) {
    seen = program[ui::txtCount].Text();
    return seen != count && seen.ends_with(kOfAll);
  }));
  program[ui::chkDetail].PressButton();
  EXPECT_TRUE(WaitFor("the box is checked",
                      [&](std::string&) { return program[ui::chkDetail].IsChecked(); }));
  program[ui::chkDetail].PressButton();
  EXPECT_TRUE(WaitFor("the box is empty again",
                      [&](std::string&) { return !program[ui::chkDetail].IsChecked(); }));
  keys::Stroke({VK_ESCAPE});
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("開始"));
  // It did not read to the end before that.
  EXPECT_THAT(program.BottomPane().Text(), EndsWith("\r\n・・・中断・・・"));
}

// The copied text is the one that was read here, not what the pane showed before.
TEST_F(HugeListTest, WithContinueThePressWaitsForTheEndOfTheReport) {
  const Program program({.conf = "continue = 1\n"});
  program.MoveWindowTo(820, 20, 420, 460);
  clipboard::SetText("前の中身");
  program.StartCapture();
  BeginReading(program);
  keys::Stroke({VK_ESCAPE});
  const std::string count = program[ui::txtCount].Text();
  EXPECT_TRUE(WaitFor("the reading goes on", [&](std::string& seen) {
    seen = program[ui::txtCount].Text();
    return seen != count && seen.ends_with(kOfAll);
  }));
  EXPECT_EQ(clipboard::Text(), "前の中身");
  // Leaving the list ends the report, and the press is handled.
  pointer::MoveTo({600, 700});
  EXPECT_TRUE(WaitFor("the text of the report is copied", [&](std::string& seen) {
    seen = clipboard::Text().value_or("(no text)");
    return seen != "前の中身";
  }));
  EXPECT_TRUE(program.IsCapturing());
}

TEST_F(HugeListTest, EndsWithTheButtonToo) {
  const Program program;
  program.MoveWindowTo(820, 20, 420, 460);
  program.StartCapture();
  BeginReading(program);
  program[ui::cmdGo].PressButton();
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("開始"));
  EXPECT_THAT(program.BottomPane().Text(), EndsWith("\r\n・・・中断・・・"));
}

}  // namespace
}  // namespace gui
