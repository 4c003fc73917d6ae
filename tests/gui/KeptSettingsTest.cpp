// Values of the settings file that no control can set: the running program keeps them.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "DialogWindow.h"
#include "SettingsText.h"
#include "bed/Needs.h"
#include "driver/GuiTest.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Target.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

class KeptSettingsTest : public GuiTest {
 protected:
  // All lines, in the order in which the program writes them.
  static std::vector<std::string> OddLines() {
    return {
        "form left = 40",
        "form top = 50",
        "form right = 640",
        "form bottom = 550",
        "top height = 1350",
        "disp Top = 2",
        "treeview indent = -1",
        "listview col = 8",
        "to file = 3",
        "turn back = 1",
        "mous pos = Client",
        "win handle = oct",
        "hotkey = Ctrl+Q",
        "enable hot t = 4",
        "disp text = 6",
        "start node = 12",
        "auto start= 2",
        "clipboard= 5",
        "hint = -2",
        "auto stop = 2",
        "auto stop time = 1",
        "auto close = 9",
        "chime = 10",
        "chime file = 鐘.wav",
        "detail = 2",
        "shift = 2",
        "shiftx = 2147483647",
        "shifty = -2147483648",
        "continue = 7",
        "parent & children = 3",
        "parent & children max= -6",
        "accname max = 123456",
        "from hwnd = -9",
        "action test = -4",
        "html tag text length = 1",
        "accValue text = x",
        "setting no = 7",
        "setting left = 1511",
        "setting top = 763",
    };
  }

  static ProgramStart With(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\n";
    return {.conf = text};
  }
};

TEST_F(KeptSettingsTest, OpeningAndClosingTheDialogsChangesNoLine) {
  NEEDS(bed::CodePage932());
  Program program(With(OddLines()));
  EXPECT_FALSE(program.IsCapturing());  // "auto start" is not 1
  const DialogWindow settings = OpenSettings(program);
  EXPECT_TRUE(settings[ui::FrList0].IsVisible());
  for (const int box : {ui::chkTreeViewIndent, ui::chkDispText, ui::ChkAccFromhWnd, ui::chkContinue,
                        ui::chkAutoClose, ui::chkChime, ui::chkShift, ui::chkDispTop, ui::chkToFile,
                        ui::chkAutoStart}) {
    EXPECT_TRUE(settings[box].IsChecked()) << box;
  }
  const DialogWindow hotKeys = OpenHotKeys(program, settings);
  EXPECT_TRUE(hotKeys[ui::chkEnableHotT].IsChecked());
  hotKeys[ui::cmdClose0].Click();
  ASSERT_TRUE(hotKeys.Closes());
  settings.Close();
  ASSERT_TRUE(settings.Closes());
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(program.ConfLines(), OddLines());
}

TEST_F(KeptSettingsTest, ClickStoresZeroOrOneAndLeavesTheOthers) {
  NEEDS(bed::CodePage932());
  Program program(With(OddLines()));
  EXPECT_TRUE(program[ui::chkAutoStop].IsChecked());
  EXPECT_TRUE(program[ui::chkDetail].IsChecked());
  const auto clickAway = [](const Control& box) {
    box.PressButton();
    Require(WaitFor("the box is cleared", [&](std::string&) { return !box.IsChecked(); }));
  };
  clickAway(program[ui::chkDetail]);
  const DialogWindow settings = OpenSettings(program);
  clickAway(settings[ui::chkTreeViewIndent]);
  settings[ui::lblButton2].Click();
  ASSERT_TRUE(WaitFor("the page is shown",
                      [&](std::string&) { return settings[ui::FrList2].IsVisible(); }));
  for (int i = 0; i < 2; ++i) settings[ui::ChkAccFromhWnd].PressButton();
  ASSERT_EQ(program.CloseAndWait(), 0U);
  std::vector<std::string> expected = OddLines();
  for (std::string& line : expected) {
    if (line.starts_with("detail")) line = "detail = 0";
    if (line.starts_with("treeview")) line = "treeview indent = 0";
    if (line.starts_with("from hwnd")) line = "from hwnd = 1";
    if (line.starts_with("setting no")) line = "setting no = 2";
  }
  EXPECT_EQ(program.ConfLines(), expected);
}

TEST_F(KeptSettingsTest, OnlyOneStopsShiftsAndStaysInFront) {
  const Fixture fixture("title=t edit=文");
  const Program program(
      {.conf = "auto stop = 2\nauto stop time = 1\nshift = 2\nshiftx = 500\ndisp top = 2\n"});
  EXPECT_EQ(GetWindowLongW(program.Window().Handle(), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
  program.StartCapture();
  pointer::MoveTo(fixture["edit"].Center());
  ASSERT_TRUE(program[ui::txthWnd].TextBecomes(fixture["edit"].HandleText()));
  EXPECT_TRUE(program[ui::cmdGo].TextStays("停止", Milliseconds(1500)));
}

TEST_F(KeptSettingsTest, TickedDetailBoxShowsTheDetails) {
  const Fixture fixture("title=t edit=文");
  const Program program({.conf = "detail = 2\n"});
  program.StartCapture();
  pointer::MoveTo(fixture["edit"].Center());
  ASSERT_TRUE(program[ui::txtWin3].TextBecomes("文"));
  EXPECT_TRUE(WaitFor("the details are shown", [&](std::string& seen) {
    seen = program.BottomPane().Text();
    return seen.find(fixture["edit"].HandleText()) != std::string::npos;
  }));
  program[ui::chkDetail].Click();
  EXPECT_TRUE(program.TopPane().TextBecomes("文"));
}

}  // namespace
}  // namespace gui
