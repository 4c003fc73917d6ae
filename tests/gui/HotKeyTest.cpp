// Keys that work in every program.
#include <windows.h>

#include <gtest/gtest.h>

#include "driver/Clipboard.h"
#include "driver/GuiTest.h"
#include "driver/Keys.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Target.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

class HotKeyTest : public GuiTest {};

TEST_F(HotKeyTest, EscapeStartsAndStops) {
  const Program program;
  keys::Stroke({VK_ESCAPE});
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("停止"));
  keys::Stroke({VK_ESCAPE});
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("開始"));
}

TEST_F(HotKeyTest, WorksWhileAnotherProgramHasTheFocus) {
  const Fixture fixture("title=t edit=x");
  const Program program({.conf = "hotkey = F7\n"});
  fixture["edit"].Click();
  ASSERT_TRUE(WaitFor("the fixture has the focus",
                      [&](std::string&) { return fixture["edit"].HasFocus(); }));
  keys::Stroke({VK_F7});
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("停止"));
  keys::Stroke({VK_F7});
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("開始"));
}

TEST_F(HotKeyTest, KeyThatIsHeldStartsOnce) {
  const Program program({.conf = "hotkey = F7\n"});
  const keys::Held held(VK_F7);
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("停止"));
  EXPECT_TRUE(program[ui::cmdGo].TextStays("停止", Milliseconds(400)));
}

TEST_F(HotKeyTest, OtherKeysDoNothing) {
  const Program program({.conf = "hotkey = F7\n"});
  keys::Stroke({VK_ESCAPE});
  keys::Stroke({VK_F8});
  keys::Stroke({VK_SHIFT, VK_F7});
  keys::Stroke({VK_CONTROL, VK_F7});
  EXPECT_TRUE(program[ui::cmdGo].TextStays("開始", Milliseconds(300)));
}

TEST_F(HotKeyTest, ShiftedKeyNeedsShift) {
  const Program program({.conf = "hotkey = Shift+F3\n"});
  keys::Stroke({VK_F3});
  EXPECT_TRUE(program[ui::cmdGo].TextStays("開始", Milliseconds(300)));
  keys::Stroke({VK_SHIFT, VK_F3});
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("停止"));
  keys::Stroke({VK_SHIFT, VK_F3});
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("開始"));
}

TEST_F(HotKeyTest, ShiftedEscapeWorksOverAnotherProgramAndLeavesEscapeAlone) {
  const Fixture fixture("title=t edit=x");
  const Program program({.conf = "hotkey = Shift+ESC\n"});
  fixture["edit"].Click();
  ASSERT_TRUE(WaitFor("the fixture has the focus",
                      [&](std::string&) { return fixture["edit"].HasFocus(); }));
  keys::Stroke({VK_ESCAPE});
  EXPECT_TRUE(program[ui::cmdGo].TextStays("開始", Milliseconds(300)));
  keys::Stroke({VK_SHIFT, VK_ESCAPE});
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("停止"));
  keys::Stroke({VK_ESCAPE});
  EXPECT_TRUE(program[ui::cmdGo].TextStays("停止", Milliseconds(300)));
  keys::Stroke({VK_SHIFT, VK_ESCAPE});
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("開始"));
}

TEST_F(HotKeyTest, NoKeyNamedMeansNoKey) {
  const Program program({.conf = "hotkey =\n"});
  keys::Stroke({VK_ESCAPE});
  EXPECT_TRUE(program[ui::cmdGo].TextStays("開始", Milliseconds(300)));
  program.StartCapture();
  keys::Stroke({VK_ESCAPE});
  EXPECT_TRUE(program[ui::cmdGo].TextStays("停止", Milliseconds(300)));
}

TEST_F(HotKeyTest, StopHintNamesTheActionTest) {
  const char* const lines[] = {" で DoDefAction Test", " で Select 1 Test", " で Select 2 Test"};
  for (int action = 1; action <= 3; ++action) {
    const Program program({.conf = "hotkey = F11\naction test = " + std::to_string(action) + "\n"});
    program.StartCapture();
    EXPECT_TRUE(
        program[ui::lblStatus].TextBecomes(std::string("F11で停止\r\nCtrl") + lines[action - 1]));
  }
}

TEST_F(HotKeyTest, ContinuedCaptureCopiesInsteadOfStopping) {
  const Fixture fixture("title=t edit=写される文");
  const Program program({.conf = "continue = 1\n"});
  clipboard::SetText("前の中身");
  program.StartCapture();
  pointer::MoveTo(fixture["edit"].Center());
  ASSERT_TRUE(program.TopPane().TextBecomes("写される文"));
  ASSERT_TRUE(program[ui::lblMsg].TextBecomes(""));
  keys::Stroke({VK_ESCAPE});
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes("上段 クリップボード転送完了"));
  EXPECT_EQ(clipboard::Text(), "写される文");
  EXPECT_TRUE(program[ui::cmdGo].TextStays("停止", Milliseconds(200)));
}

// The fixture must hold the foreground: otherwise bringing the program to the front could not be
// seen.
void PutInFront(const Control& window) {
  window.Click();
  Require(WaitFor("the fixture is in front", [&](std::string&) {
    return GetForegroundWindow() == GetAncestor(window.Handle(), GA_ROOT);
  }));
}

TEST_F(HotKeyTest, AltTBringsTheProgramToTheFront) {
  const Fixture fixture("title=t edit=x");
  const Program program;
  PutInFront(fixture["edit"]);
  keys::Stroke({VK_MENU, 'T'});
  EXPECT_TRUE(WaitFor("the program is in front", [&](std::string& seen) {
    seen = Control(GetForegroundWindow(), "").ClassName();
    return GetForegroundWindow() == program.Window().Handle();
  }));
  EXPECT_TRUE(WaitFor("the top pane has the focus",
                      [&](std::string&) { return program.TopPane().HasFocus(); }));
}

TEST_F(HotKeyTest, AltTCanBeSwitchedOff) {
  const Fixture fixture("title=t edit=x");
  const Program program({.conf = "enable hot t = 0\n"});
  PutInFront(fixture["edit"]);
  keys::Stroke({VK_MENU, 'T'});
  EXPECT_TRUE(Stays(
      "the fixture stays in front",
      [&](std::string&) { return GetForegroundWindow() == fixture["main"].Handle(); },
      Milliseconds(300)));
}

std::string Selection(const Control& edit) {
  const LRESULT range = SendMessageW(edit.Handle(), EM_GETSEL, 0, 0);
  return std::to_string(LOWORD(range)) + ".." + std::to_string(HIWORD(range));
}

TEST_F(HotKeyTest, CtrlASelectsTheWholePane) {
  const Program program;
  program.TopPane().SetText("abc\r\ndef\r\nghi");
  program.TopPane().Click();
  ASSERT_TRUE(WaitFor("the top pane has the focus",
                      [&](std::string&) { return program.TopPane().HasFocus(); }));
  keys::Stroke({VK_CONTROL, 'A'});
  EXPECT_TRUE(TextBecomes("the selection", "0..13", [&] { return Selection(program.TopPane()); }));
}

TEST_F(HotKeyTest, CtrlAElsewhereSelectsNothingHere) {
  const Fixture fixture("title=t edit=x");
  const Program program;
  program.TopPane().SetText("abcdef");
  PutInFront(fixture["edit"]);
  keys::Stroke({VK_CONTROL, 'A'});
  EXPECT_TRUE(Stays(
      "nothing is selected",
      [&](std::string& seen) {
        seen = Selection(program.TopPane());
        return seen == "0..0" || seen == "6..6";
      },
      Milliseconds(300)));
}

}  // namespace
}  // namespace gui
