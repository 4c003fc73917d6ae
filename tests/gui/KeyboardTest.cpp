// The main window used with the keyboard alone.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "driver/GuiTest.h"
#include "driver/Keys.h"
#include "driver/Program.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

class KeyboardTest : public GuiTest {
 protected:
  static int FocusOf(const Program& program) {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(program.Window().Handle(), nullptr), &info);
    return info.hwndFocus == nullptr ? 0 : GetDlgCtrlID(info.hwndFocus);
  }

  static void FocusTopPane(const Program& program) {
    program.TopPane().Click();
    Require(WaitFor("the top pane has the focus",
                    [&](std::string&) { return program.TopPane().HasFocus(); }));
  }
};

TEST_F(KeyboardTest, TabVisitsEveryControlAndComesBack) {
  const Program program;
  FocusTopPane(program);
  std::vector<int> visited;
  constexpr int kMore = 40;
  for (int step = 0; step < kMore; ++step) {
    const int before = FocusOf(program);
    keys::Stroke({VK_TAB}, Milliseconds(20));
    ASSERT_TRUE(WaitFor("the focus moves", [&](std::string& seen) {
      seen = std::to_string(FocusOf(program));
      return FocusOf(program) != before;
    }));
    visited.push_back(FocusOf(program));
    if (visited.back() == ui::txtWinTextT0) break;
  }
  EXPECT_EQ(visited.back(), ui::txtWinTextT0);
  EXPECT_THAT(visited, testing::IsSupersetOf(
                           {static_cast<int>(ui::cmdGo), static_cast<int>(ui::cmdSetting),
                            static_cast<int>(ui::chkAutoStop), static_cast<int>(ui::chkTurnBack),
                            static_cast<int>(ui::chkDetail), static_cast<int>(ui::txtWinTextB0),
                            static_cast<int>(ui::Help_Url)}));
  // The hidden members of the pane pairs are skipped.
  EXPECT_THAT(visited, testing::Not(testing::Contains(static_cast<int>(ui::txtWinTextT1))));
}

TEST_F(KeyboardTest, SpaceTicksTheBoxThatHasTheFocus) {
  const Program program;
  FocusTopPane(program);
  for (int step = 0; step < 40 && FocusOf(program) != ui::chkDetail; ++step) {
    const int before = FocusOf(program);
    keys::Stroke({VK_TAB}, Milliseconds(20));
    ASSERT_TRUE(
        WaitFor("the focus moves", [&](std::string&) { return FocusOf(program) != before; }));
  }
  ASSERT_EQ(FocusOf(program), ui::chkDetail);
  keys::Stroke({VK_SPACE}, Milliseconds(20));
  EXPECT_TRUE(WaitFor("the box is ticked",
                      [&](std::string&) { return program[ui::chkDetail].IsChecked(); }));
}

}  // namespace
}  // namespace gui
