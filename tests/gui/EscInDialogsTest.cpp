// The Esc key while a dialog is open: it is the hot key by default, polled wherever it is pressed.
#include <windows.h>

#include <gtest/gtest.h>

#include "DialogWindow.h"
#include "driver/GuiTest.h"
#include "driver/Keys.h"
#include "driver/Program.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

class EscInDialogsTest : public GuiTest {
 protected:
  static bool ListIsOpen(const Control& list) {
    return SendMessageW(list.Handle(), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
  }

  static void ExpectFront(const DialogWindow& dialog) {
    EXPECT_TRUE(WaitFor("the dialog is in front", [&](std::string&) {
      return GetForegroundWindow() == dialog.Window().Handle();
    }));
  }

  // One press starts a capture, the next one ends it, and nothing else happens.
  static void ExpectOnlyTheCaptureFollows(const Program& program, const DialogWindow& dialog) {
    for (const char* const caption : {"停止", "開始"}) {
      ExpectFront(dialog);
      keys::Stroke({VK_ESCAPE});
      EXPECT_TRUE(program[ui::cmdGo].TextBecomes(caption));
      EXPECT_TRUE(program[ui::cmdGo].TextStays(caption, Milliseconds(300)));
      EXPECT_TRUE(dialog.IsOpen());
      SetForegroundWindow(dialog.Window().Handle());
    }
  }

  // Presses the key where the list has the focus, and checks that only the list closes.
  static void ExpectOnlyTheListCloses(const DialogWindow& dialog, int id) {
    const Control list = dialog[id];
    BoxOf(list).Click();
    ASSERT_TRUE(FocusMovesTo(dialog, id));
    const std::string before = list.Text();
    keys::Stroke({VK_MENU, VK_DOWN}, Milliseconds(50));
    ASSERT_TRUE(WaitFor("the list is open", [&](std::string&) { return ListIsOpen(list); }));
    keys::Stroke({VK_ESCAPE}, Milliseconds(20));
    EXPECT_TRUE(WaitFor("the list is closed", [&](std::string&) { return !ListIsOpen(list); }));
    keys::Stroke({VK_ESCAPE}, Milliseconds(20));
    EXPECT_TRUE(Stays(
        "the dialog is open", [&](std::string&) { return dialog.IsOpen(); }, Milliseconds(300)));
    EXPECT_EQ(list.Text(), before);
  }
};

TEST_F(EscInDialogsTest, TogglesTheCaptureAndLeavesTheSettingsOpen) {
  const Program program({.conf = "disp top = 0\n"});
  const DialogWindow dialog = OpenSettings(program);
  ExpectOnlyTheCaptureFollows(program, dialog);
}

TEST_F(EscInDialogsTest, TogglesTheCaptureAndLeavesTheHotKeysOpen) {
  const Program program({.conf = "disp top = 0\nsetting no = 3\n"});
  const DialogWindow settings = OpenSettings(program);
  const DialogWindow dialog = OpenHotKeys(program, settings);
  ExpectOnlyTheCaptureFollows(program, dialog);
  EXPECT_TRUE(settings.IsOpen());
}

TEST_F(EscInDialogsTest, ClosesAnOpenListOfTheSettings) {
  const Program program({.conf = "hotkey = F9\nsetting no = 2\n"});
  const DialogWindow dialog = OpenSettings(program);
  ExpectOnlyTheListCloses(dialog, ui::cmbChildMaxCount);
  ExpectOnlyTheListCloses(dialog, ui::cmbAccNameMax);
  EXPECT_FALSE(program.IsCapturing());
}

TEST_F(EscInDialogsTest, ClosesTheOpenListOfHotKeys) {
  const Program program({.conf = "hotkey = F9\nsetting no = 3\n"});
  const DialogWindow settings = OpenSettings(program);
  const DialogWindow dialog = OpenHotKeys(program, settings);
  ExpectOnlyTheListCloses(dialog, ui::cmbHotKey);
  EXPECT_TRUE(settings.IsOpen());
}

}  // namespace
}  // namespace gui
