// The settings dialog used with the keyboard, and the keys that its boxes accept.
#include <windows.h>

#include <gtest/gtest.h>

#include "DialogWindow.h"
#include "SettingsText.h"
#include "driver/GuiTest.h"
#include "driver/Keys.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

class SettingDialogKeysTest : public GuiTest {};

TEST_F(SettingDialogKeysTest, AutoStopBoxTakesDigitsOnly) {
  Program program({.conf = "setting no = 3\n"});
  const DialogWindow dialog = OpenSettings(program);
  EXPECT_FALSE(dialog[ui::chkAutoClose].IsVisible());
  EXPECT_FALSE(dialog[ui::chkChime].IsVisible());
  const Control box = BoxOf(dialog[ui::cmbAutoStop]);
  Retype(box, {'A', '2', VK_OEM_MINUS, VK_SPACE, '5'});
  EXPECT_TRUE(dialog[ui::cmbAutoStop].TextBecomes("25"));
  EXPECT_TRUE(WaitFor("the boxes are shown",
                      [&](std::string&) { return dialog[ui::chkChime].IsVisible(); }));
  EXPECT_TRUE(dialog[ui::chkAutoClose].IsVisible());
  Retype(box, {});
  EXPECT_TRUE(
      WaitFor("the boxes go", [&](std::string&) { return !dialog[ui::chkChime].IsVisible(); }));
  EXPECT_FALSE(dialog[ui::chkAutoClose].IsVisible());
  Retype(box, {'9'});
  EXPECT_TRUE(dialog[ui::cmbAutoStop].TextBecomes("9"));
  Choose(dialog[ui::cmbAutoStop], 0);
  EXPECT_TRUE(dialog[ui::cmbAutoStop].TextBecomes(""));
  EXPECT_TRUE(
      WaitFor("the boxes go", [&](std::string&) { return !dialog[ui::chkChime].IsVisible(); }));
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "auto stop time"), "0");
}

TEST_F(SettingDialogKeysTest, ShiftBoxesTakeNumbersOnly) {
  Program program({.conf = "setting no = 3\nshift = 1\n"});
  const DialogWindow dialog = OpenSettings(program);
  Retype(dialog[ui::txtShift0], {'X', '5', VK_OEM_PERIOD, VK_OEM_MINUS, VK_SPACE});
  EXPECT_TRUE(dialog[ui::txtShift0].TextBecomes("5-"));
  Retype(dialog[ui::txtShift1], {VK_OEM_MINUS});
  EXPECT_TRUE(dialog[ui::txtShift1].TextBecomes("-"));
  dialog[ui::cmdClose].Click();
  ASSERT_TRUE(dialog.Closes());
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "shiftx"), "5");
  EXPECT_EQ(ValueOf(program.ConfLines(), "shifty"), "0");
}

TEST_F(SettingDialogKeysTest, TabVisitsWhatThePageShows) {
  const Program program({.conf = "setting no = 3\nshift = 1\n"});
  const DialogWindow dialog = OpenSettings(program);
  ASSERT_TRUE(FocusMovesTo(dialog, ui::lblButton3));
  for (const int next : {ui::chkContinue, ui::cmbAutoStop, ui::chkShift, ui::txtShift0,
                         ui::txtShift1, ui::chkDispTop, ui::chkToFile, ui::chkAutoStart,
                         ui::cmdHotKey, ui::cmdClose, ui::lblButton0}) {
    keys::Stroke({VK_TAB}, Milliseconds(20));
    ASSERT_TRUE(FocusMovesTo(dialog, next));
  }
}

TEST_F(SettingDialogKeysTest, WorksByKeyboardAlone) {
  Program program({.conf = "hotkey = F9\n"});
  const DialogWindow dialog = OpenSettings(program);
  ASSERT_TRUE(FocusMovesTo(dialog, ui::lblButton0));
  for (const int next : {ui::lblButton1, ui::lblButton2, ui::lblButton3, ui::Opt_Clipboard0}) {
    keys::Stroke({VK_TAB}, Milliseconds(20));
    ASSERT_TRUE(FocusMovesTo(dialog, next));
  }
  // Arrows choose within a group and stay in it.
  keys::Stroke({VK_DOWN}, Milliseconds(20));
  keys::Stroke({VK_DOWN}, Milliseconds(20));
  ASSERT_TRUE(FocusMovesTo(dialog, ui::Opt_Clipboard2));
  EXPECT_TRUE(dialog[ui::Opt_Clipboard2].IsChecked());
  keys::Stroke({VK_UP}, Milliseconds(20));
  ASSERT_TRUE(FocusMovesTo(dialog, ui::Opt_Clipboard1));
  for (const int next : {ui::OptHint0, ui::chkTreeViewIndent}) {
    keys::Stroke({VK_TAB}, Milliseconds(20));
    ASSERT_TRUE(FocusMovesTo(dialog, next));
  }
  keys::Stroke({VK_SPACE}, Milliseconds(20));
  EXPECT_TRUE(WaitFor("the box is clear",
                      [&](std::string&) { return !dialog[ui::chkTreeViewIndent].IsChecked(); }));
  // The space bar on a page button shows its page.
  for (const int next : {ui::OptHint0, ui::Opt_Clipboard1, ui::lblButton3, ui::lblButton2}) {
    keys::Stroke({VK_SHIFT, VK_TAB}, Milliseconds(20));
    ASSERT_TRUE(FocusMovesTo(dialog, next));
  }
  keys::Stroke({VK_SPACE}, Milliseconds(20));
  EXPECT_TRUE(
      WaitFor("the page is shown", [&](std::string&) { return dialog[ui::FrList2].IsVisible(); }));
  for (const int next : {ui::lblButton1, ui::lblButton0, ui::cmdClose}) {
    keys::Stroke({VK_SHIFT, VK_TAB}, Milliseconds(20));
    ASSERT_TRUE(FocusMovesTo(dialog, next));
  }
  keys::Stroke({VK_RETURN}, Milliseconds(20));
  EXPECT_TRUE(dialog.Closes());
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "clipboard"), "1");
  EXPECT_EQ(ValueOf(program.ConfLines(), "treeview indent"), "0");
  EXPECT_EQ(ValueOf(program.ConfLines(), "setting no"), "2");
}

}  // namespace
}  // namespace gui
