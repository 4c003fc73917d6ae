// The settings dialog together with the main window and a capture.
#include <windows.h>

#include <gtest/gtest.h>

#include "DialogWindow.h"
#include "SettingsText.h"
#include "driver/GuiTest.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Target.h"
#include "driver/Windows.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

class DialogAndCaptureTest : public GuiTest {};

TEST_F(DialogAndCaptureTest, MainWindowOwnsTheDialog) {
  const Program program;
  const DialogWindow dialog = OpenSettings(program);
  EXPECT_EQ(GetWindow(dialog.Window().Handle(), GW_OWNER), program.Window().Handle());
}

TEST_F(DialogAndCaptureTest, OnlyOneIsOpenAtATime) {
  const Program program;
  const DialogWindow dialog = OpenSettings(program);
  const std::size_t windows = VisibleWindows(program.Process().Id()).size();
  program[ui::cmdSetting].PressButton();
  EXPECT_TRUE(Stays(
      "no second dialog shows",
      [&](std::string& seen) {
        const std::size_t now = VisibleWindows(program.Process().Id()).size();
        seen = std::to_string(now) + " windows";
        return now == windows;
      },
      Milliseconds(400)));
  dialog.Close();
  EXPECT_TRUE(dialog.Closes());
  EXPECT_TRUE(OpenSettings(program).IsOpen());
}

TEST_F(DialogAndCaptureTest, CaptureGoesOnWhileTheDialogIsOpen) {
  const Fixture fixture("title=t static=名札 edit=文");
  const Program program({.conf = "setting left = 10500\nsetting top = 1500\n"});
  program.StartCapture();
  const DialogWindow dialog = OpenSettings(program);
  for (const char* kind : {"static", "edit"}) {
    pointer::MoveTo(fixture[kind].Center());
    EXPECT_TRUE(program[ui::txthWnd].TextBecomes(fixture[kind].HandleText())) << kind;
  }
  EXPECT_TRUE(program.IsCapturing());
  dialog.Close();
  ASSERT_TRUE(dialog.Closes());
  EXPECT_TRUE(program[ui::cmdGo].TextStays("停止", Milliseconds(200)));
}

TEST_F(DialogAndCaptureTest, SettingThatShapesTheReportMakesANewOne) {
  const Fixture fixture("title=t edit=前の文");
  const Program program({.conf = "setting left = 10500\nsetting top = 1500\nsetting no = 0\n"});
  program.StartCapture();
  const DialogWindow dialog = OpenSettings(program);
  pointer::MoveTo(fixture["edit"].Center());
  ASSERT_TRUE(program.TopPane().TextBecomes("前の文"));
  ASSERT_TRUE(program[ui::lblMsg].TextBecomes(""));
  fixture["edit"].SetText("後の文");
  dialog[ui::OptListview2].PressButton();
  EXPECT_TRUE(program.TopPane().TextBecomes("後の文", Milliseconds(5000)));
}

TEST_F(DialogAndCaptureTest, CaptureStartsAndStopsWhileTheDialogIsOpen) {
  const Program program;
  const DialogWindow dialog = OpenSettings(program);
  program.StartCapture();
  program.StopCapture();
  EXPECT_TRUE(dialog.IsOpen());
}

TEST_F(DialogAndCaptureTest, StayingInFrontWaitsForTheDialogToClose) {
  const Program program({.conf = "disp top = 1\nsetting no = 3\n"});
  const DialogWindow dialog = OpenSettings(program);
  program.StartCapture();
  const auto isTopmost = [&](std::string&) {
    return (GetWindowLongW(program.Window().Handle(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
  };
  ASSERT_TRUE(WaitFor("the window is topmost", isTopmost));
  const Control box = dialog[ui::chkDispTop];
  box.PressButton();
  ASSERT_TRUE(WaitFor("the box is clear", [&](std::string&) { return !box.IsChecked(); }));
  EXPECT_TRUE(Stays("the window stays topmost", isTopmost, Milliseconds(500)));
}

TEST_F(DialogAndCaptureTest, StayingInFrontIsAppliedOnceTheDialogIsClosed) {
  Program program({.conf = "disp top = 1\nsetting no = 3\n"});
  const DialogWindow dialog = OpenSettings(program);
  const Control box = dialog[ui::chkDispTop];
  box.PressButton();
  ASSERT_TRUE(WaitFor("the box is clear", [&](std::string&) { return !box.IsChecked(); }));
  dialog.Close();
  ASSERT_TRUE(dialog.Closes());
  EXPECT_TRUE(WaitFor("the window is no longer topmost", [&](std::string&) {
    return (GetWindowLongW(program.Window().Handle(), GWL_EXSTYLE) & WS_EX_TOPMOST) == 0;
  }));
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "disp Top"), "0");
}

}  // namespace
}  // namespace gui
