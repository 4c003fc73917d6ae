// The hot-key dialog of the running program.
#include <windows.h>

#include <gtest/gtest.h>

#include "DialogWindow.h"
#include "SettingsText.h"
#include "driver/GuiTest.h"
#include "driver/Keys.h"
#include "driver/Pointer.h"
#include "driver/Target.h"
#include "settings/MySub_HotKey.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

constexpr int kF7 = 9;        // in the list
constexpr int kShiftF4 = 20;  // in the list

class HotKeyDialogTest : public GuiTest {
 protected:
  static ProgramStart With(const std::string& hotkey) {
    return {.conf = "setting no = 3\nhotkey = " + hotkey + "\n"};
  }
};

TEST_F(HotKeyDialogTest, ShowsTheListAndTheCurrentKey) {
  const Program program({.conf = "setting no = 3\nhotkey = F7\nenable hot t = 0\n"});
  const DialogWindow settings = OpenSettings(program);
  EXPECT_EQ(settings[ui::lblHotKey].Text(), "F7");
  const DialogWindow dialog = OpenHotKeys(program, settings);
  const Control list = dialog[ui::cmbHotKey];
  EXPECT_EQ(ItemCount(list), static_cast<int>(MySub_HotKey::kHotKeyCount));
  EXPECT_EQ(ChosenIndex(list), kF7);
  EXPECT_EQ(list.Text(), "F7");
  EXPECT_EQ(Item(list, 0), "");
  EXPECT_EQ(Item(list, 2), "ESC");
  EXPECT_EQ(Item(list, 28), "Shift+F12");
  EXPECT_FALSE(dialog[ui::chkEnableHotT].IsChecked());
  const RECT at = dialog.Window().Rectangle();
  EXPECT_NEAR(at.left + at.right, GetSystemMetrics(SM_CXSCREEN), 1);
  EXPECT_NEAR(at.top + at.bottom, GetSystemMetrics(SM_CYSCREEN), 1);
}

TEST_F(HotKeyDialogTest, ChosenKeyStartsAndStopsFromNowOn) {
  Program program(With("F9"));
  const DialogWindow settings = OpenSettings(program);
  const DialogWindow dialog = OpenHotKeys(program, settings);
  Choose(dialog[ui::cmbHotKey], kShiftF4);
  dialog[ui::chkEnableHotT].Click();
  dialog[ui::cmdClose0].Click();
  ASSERT_TRUE(dialog.Closes());
  EXPECT_TRUE(settings[ui::lblHotKey].TextBecomes("Shift+F4"));
  for (const WORD other : {WORD{VK_F9}, WORD{VK_F4}}) {
    keys::Stroke({other});
    EXPECT_TRUE(program[ui::cmdGo].TextStays("開始", Milliseconds(200)));
  }
  keys::Stroke({VK_SHIFT, VK_F4});
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("停止"));
  EXPECT_TRUE(program[ui::lblStatus].TextBecomes("Shift+F4で停止"));
  keys::Stroke({VK_SHIFT, VK_F4});
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("開始"));
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "hotkey"), "Shift+F4");
  EXPECT_EQ(ValueOf(program.ConfLines(), "enable hot t"), "0");
}

TEST_F(HotKeyDialogTest, EarlierPressOfTheChosenKeyStartsNothing) {
  const Program program(With("F9"));
  keys::Stroke({VK_F7});
  const DialogWindow settings = OpenSettings(program);
  const DialogWindow dialog = OpenHotKeys(program, settings);
  Choose(dialog[ui::cmbHotKey], kF7);
  dialog[ui::cmdClose0].Click();
  ASSERT_TRUE(dialog.Closes());
  EXPECT_TRUE(program[ui::cmdGo].TextStays("開始", Milliseconds(300)));
  keys::Stroke({VK_F7});
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("停止"));
}

TEST_F(HotKeyDialogTest, CancelKeepsTheOldKey) {
  Program program(With("F9"));
  const DialogWindow settings = OpenSettings(program);
  const DialogWindow dialog = OpenHotKeys(program, settings);
  Choose(dialog[ui::cmbHotKey], kF7);
  dialog[ui::chkEnableHotT].Click();
  dialog[ui::cmdClose1].Click();
  ASSERT_TRUE(dialog.Closes());
  EXPECT_EQ(settings[ui::lblHotKey].Text(), "F9");
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "hotkey"), "F9");
  EXPECT_EQ(ValueOf(program.ConfLines(), "enable hot t"), "1");
}

TEST_F(HotKeyDialogTest, UnknownNameIsKept) {
  Program program(With("Ctrl+Q"));
  const DialogWindow settings = OpenSettings(program);
  EXPECT_EQ(settings[ui::lblHotKey].Text(), "Ctrl+Q");
  const DialogWindow dialog = OpenHotKeys(program, settings);
  EXPECT_EQ(dialog[ui::cmbHotKey].Text(), "Ctrl+Q");
  EXPECT_EQ(ChosenIndex(dialog[ui::cmbHotKey]), -1);
  dialog[ui::cmdClose0].Click();
  ASSERT_TRUE(dialog.Closes());
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "hotkey"), "Ctrl+Q");
}

TEST_F(HotKeyDialogTest, WorksByKeyboardAlone) {
  Program program(With("F9"));
  const DialogWindow settings = OpenSettings(program);
  const DialogWindow dialog = OpenHotKeys(program, settings);
  const Control box = BoxOf(dialog[ui::cmbHotKey]);
  ASSERT_TRUE(WaitFor("the list has the focus", [&](std::string&) { return box.HasFocus(); }));
  keys::Stroke({VK_MENU, VK_DOWN}, Milliseconds(50));
  ASSERT_TRUE(WaitFor("the list is open", [&](std::string&) {
    return SendMessageW(dialog[ui::cmbHotKey].Handle(), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
  }));
  keys::Stroke({VK_DOWN}, Milliseconds(20));
  keys::Stroke({VK_RETURN}, Milliseconds(20));
  ASSERT_TRUE(dialog[ui::cmbHotKey].TextBecomes("F10"));
  ASSERT_TRUE(WaitFor("the list is closed", [&](std::string&) {
    return SendMessageW(dialog[ui::cmbHotKey].Handle(), CB_GETDROPPEDSTATE, 0, 0) == FALSE;
  }));
  keys::Stroke({VK_RETURN}, Milliseconds(20));
  ASSERT_TRUE(dialog.Closes());
  EXPECT_TRUE(settings[ui::lblHotKey].TextBecomes("F10"));

  const DialogWindow again = OpenHotKeys(program, settings);
  Choose(again[ui::cmbHotKey], kF7);
  for (const int next : {ui::chkEnableHotT, ui::cmdClose0, ui::cmdClose1}) {
    keys::Stroke({VK_TAB}, Milliseconds(20));
    ASSERT_TRUE(FocusMovesTo(again, next));
  }
  keys::Stroke({VK_RETURN}, Milliseconds(20));
  ASSERT_TRUE(again.Closes());
  EXPECT_EQ(settings[ui::lblHotKey].Text(), "F10");
}

TEST_F(HotKeyDialogTest, SettingsDialogWaitsForIt) {
  const Program program(With("F9"));
  const DialogWindow settings = OpenSettings(program);
  const DialogWindow dialog = OpenHotKeys(program, settings);
  EXPECT_FALSE(settings.Window().IsEnabled());
  settings.Close();
  EXPECT_TRUE(Stays(
      "both dialogs stay", [&](std::string&) { return settings.IsOpen() && dialog.IsOpen(); },
      Milliseconds(300)));
  // The main window's button brings the usable dialog to the front.
  SetForegroundWindow(program.Window().Handle());
  program[ui::cmdSetting].PressButton();
  EXPECT_TRUE(WaitFor("the hot-key dialog is in front", [&](std::string&) {
    return GetForegroundWindow() == dialog.Window().Handle();
  }));
  dialog.Close();
  ASSERT_TRUE(dialog.Closes());
  EXPECT_TRUE(settings.Window().IsEnabled());
  EXPECT_TRUE(WaitFor("the settings dialog is in front again", [&](std::string&) {
    return GetForegroundWindow() == settings.Window().Handle();
  }));
}

TEST_F(HotKeyDialogTest, CaptureGoesOnAndEndsWhileItIsOpen) {
  const Fixture fixture("title=t edit=文 static=名札");
  // A topmost main window would hide its dialogs here when the capture activates it. In Windows
  // an owner never does.
  const Program program({.conf = "setting no = 3\nhotkey = F9\ndisp top = 0\n"});
  program.StartCapture();
  const DialogWindow settings = OpenSettings(program);
  const DialogWindow dialog = OpenHotKeys(program, settings);
  for (const char* kind : {"static", "edit"}) {
    pointer::MoveTo(fixture[kind].Center());
    EXPECT_TRUE(program[ui::txthWnd].TextBecomes(fixture[kind].HandleText())) << kind;
  }
  keys::Stroke({VK_F9});
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("開始"));
  keys::Stroke({VK_F9});
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("停止"));
  Choose(dialog[ui::cmbHotKey], kF7);
  dialog[ui::cmdClose0].Click();
  ASSERT_TRUE(dialog.Closes());
  EXPECT_TRUE(program[ui::lblStatus].TextBecomes("F7で停止"));
  keys::Stroke({VK_F7});
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("開始"));
}

}  // namespace
}  // namespace gui
