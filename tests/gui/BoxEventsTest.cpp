// What panes and boxes do with clicks and keys.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "driver/Clipboard.h"
#include "driver/GuiTest.h"
#include "driver/Keys.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Target.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

class BoxEventsTest : public GuiTest {
 protected:
  void SetUp() override {
    GuiTest::SetUp();
    if (!IsSkipped()) clipboard::SetText("元のまま");
  }

  // Captures the fixture's static and stops again.
  static void Capture(const Program& program, const Fixture& fixture) {
    program.StartCapture();
    pointer::MoveTo(fixture["static"].Center());
    Require(program.TopPane().TextBecomes("拾った文字"));
    Require(program[ui::lblMsg].TextBecomes(""));
    program.StopCapture();
  }

  static testing::AssertionResult ClipboardBecomes(std::string_view expected) {
    return TextBecomes("the clipboard", expected,
                       [] { return clipboard::Text().value_or("(none)"); });
  }
  static testing::AssertionResult ClipboardStays(std::string_view expected) {
    return TextStays(
        "the clipboard", expected, [] { return clipboard::Text().value_or("(none)"); },
        Milliseconds(300));
  }

  // First and last position of the selection in a box, in UTF-16 units.
  static std::pair<DWORD, DWORD> Selection(const Control& box) {
    const LRESULT selection = SendMessageW(box.Handle(), EM_GETSEL, 0, 0);
    return {LOWORD(selection), HIWORD(selection)};
  }
  static testing::AssertionResult IsAllSelected(const Control& box, DWORD length) {
    return WaitFor("the whole text is selected", [&](std::string& seen) {
      const auto [start, end] = Selection(box);
      seen = std::to_string(start) + " to " + std::to_string(end);
      return start == 0 && end == length;
    });
  }

  Fixture fixture_{"title=t static=拾った文字"};
};

TEST_F(BoxEventsTest, AClickCopiesAPaneWhenAsked) {
  const Program program({.conf = "clipboard = 1\n"});
  Capture(program, fixture_);
  program.TopPane().Click();
  EXPECT_TRUE(ClipboardBecomes("拾った文字"));
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes("テキスト転送完了！"));
}

TEST_F(BoxEventsTest, AlsoInTheWrappingPanesAndTheSmallBoxes) {
  const Program program({.conf = "clipboard = 1\nturn back = 1\ndetail = 1\n"});
  program.StartCapture();
  pointer::MoveTo(fixture_["static"].Center());
  Require(program[ui::txtWin0].TextBecomes("Static"));
  Require(program[ui::lblMsg].TextBecomes(""));
  program.StopCapture();
  program.BottomPane().Click();
  EXPECT_TRUE(ClipboardBecomes(program.BottomPane().Text()));
  program[ui::txtWin0].Click();
  EXPECT_TRUE(ClipboardBecomes("Static"));
}

TEST_F(BoxEventsTest, AClickCopiesNothingOtherwise) {
  for (const char* const mode : {"0", "2", "3"}) {
    const Program program({.conf = std::string("clipboard = ") + mode + "\n"});
    Capture(program, fixture_);
    clipboard::SetText("元のまま");
    program.TopPane().Click();
    EXPECT_TRUE(ClipboardStays("元のまま")) << mode;
  }
}

TEST_F(BoxEventsTest, ADoubleClickSelectsTheWholePane) {
  for (const char* const turnBack : {"0", "1"}) {
    const Program program({.conf = std::string("turn back = ") + turnBack + "\n"});
    Capture(program, fixture_);
    program.TopPane().DoubleClick();
    EXPECT_TRUE(IsAllSelected(program.TopPane(), 5)) << turnBack;
  }
}

TEST_F(BoxEventsTest, CtrlCCopiesTheSelection) {
  const Program program;
  Capture(program, fixture_);
  program.TopPane().DoubleClick();
  Require(IsAllSelected(program.TopPane(), 5));
  keys::Stroke({VK_CONTROL, 'C'});
  EXPECT_TRUE(ClipboardBecomes("拾った文字"));

  SendMessageW(program.TopPane().Handle(), EM_SETSEL, 1, 3);
  keys::Stroke({VK_CONTROL, 'C'});
  EXPECT_TRUE(ClipboardBecomes("った"));
}

TEST_F(BoxEventsTest, CtrlCWithOtherModifiersCopiesNothing) {
  const Program program;
  Capture(program, fixture_);
  program.TopPane().DoubleClick();
  Require(IsAllSelected(program.TopPane(), 5));
  keys::Stroke({VK_CONTROL, VK_SHIFT, 'C'});
  EXPECT_TRUE(ClipboardStays("元のまま"));
  keys::Stroke({VK_CONTROL, VK_MENU, 'C'});
  EXPECT_TRUE(ClipboardStays("元のまま"));
}

TEST_F(BoxEventsTest, CtrlCWithoutASelectionCopiesTheEmptyText) {
  const Program program;
  Capture(program, fixture_);
  program.TopPane().Click();
  keys::Stroke({VK_CONTROL, 'C'});
  EXPECT_TRUE(ClipboardBecomes(""));
}

TEST_F(BoxEventsTest, CtrlCWorksInTheSmallBoxes) {
  const Program program;
  Capture(program, fixture_);
  program[ui::txtWin0].DoubleClick();
  Require(IsAllSelected(program[ui::txtWin0], 6));
  keys::Stroke({VK_CONTROL, 'C'});
  EXPECT_TRUE(ClipboardBecomes("Static"));
}

TEST_F(BoxEventsTest, CtrlCWorksInEveryBox) {
  for (const int member : {0, 1}) {
    const Program program({.conf = "clipboard = 0\nturn back = " + std::to_string(member) + "\n"});
    for (const int id :
         std::vector<int>{ui::txthWnd, ui::txtStatus, ui::txtWin0, ui::txtWin1, ui::txtWin2,
                          ui::txtWin3, ui::txtWinTextT0 + member, ui::txtWinTextB0 + member}) {
      const Control box = program[id];
      const std::string text = "箱 " + std::to_string(id) + " の中身";
      box.SetText(text);
      box.DoubleClick();
      ASSERT_TRUE(IsAllSelected(box, static_cast<DWORD>(box.TextLength()))) << "control " << id;
      keys::Stroke({VK_CONTROL, 'C'});
      EXPECT_TRUE(ClipboardBecomes(text)) << "control " << id;
    }
  }
}

}  // namespace
}  // namespace gui
