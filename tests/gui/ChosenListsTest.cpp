// The drop-down lists that can only be changed by choosing an item: no key edits their text,
// whether the list is closed or open.
#include <windows.h>

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "DialogWindow.h"
#include "SettingsText.h"
#include "driver/Clipboard.h"
#include "driver/GuiTest.h"
#include "driver/Keys.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Windows.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

class ChosenListsTest : public GuiTest {
 protected:
  static bool IsListOpen(const Control& list) {
    return SendMessageW(list.Handle(), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
  }

  static testing::AssertionResult ListBecomes(const Control& list, bool open) {
    return WaitFor(open ? "the list is open" : "the list is closed",
                   [&](std::string&) { return IsListOpen(list) == open; });
  }

  static void Press(WORD key) { keys::Stroke({key}, Milliseconds(20)); }

  // Tries every key that edits a text, with the list closed and then open.
  static void ExpectNothingEdits(const DialogWindow& dialog, int id, const std::string& text) {
    const Control list = dialog[id];
    clipboard::SetText("777");
    BoxOf(list).Click();
    ASSERT_TRUE(FocusMovesTo(dialog, id));
    for (const bool open : {false, true}) {
      if (open) keys::Stroke({VK_MENU, VK_DOWN}, Milliseconds(50));
      ASSERT_TRUE(ListBecomes(list, open));
      for (const std::vector<WORD>& pressed :
           std::initializer_list<std::vector<WORD>>{{'5'},
                                                    {'F'},
                                                    {VK_SPACE},
                                                    {VK_BACK},
                                                    {VK_DELETE},
                                                    {VK_CONTROL, 'X'},
                                                    {VK_CONTROL, 'V'},
                                                    {VK_SHIFT, VK_INSERT},
                                                    {VK_SHIFT, VK_DELETE}}) {
        SendMessageW(BoxOf(list).Handle(), EM_SETSEL, 0, -1);
        if (pressed.size() == 1) Press(pressed[0]);
        if (pressed.size() == 2) keys::Stroke({pressed[0], pressed[1]}, Milliseconds(20));
        EXPECT_TRUE(list.TextStays(text, Milliseconds(60))) << pressed[0] << " " << pressed.back();
        EXPECT_EQ(IsListOpen(list), open) << pressed[0] << " " << pressed.back();
      }
    }
    Press(VK_ESCAPE);
    ASSERT_TRUE(ListBecomes(list, false));
    EXPECT_EQ(list.Text(), text);
    EXPECT_EQ(clipboard::Text(), "777");
  }

  static void ExpectNoContextMenu(const Program& program, const Control& box) {
    SetCursorPos(box.Center().x, box.Center().y);
    INPUT inputs[2] = {};
    for (INPUT& input : inputs) input.type = INPUT_MOUSE;
    inputs[0].mi.dwFlags = MOUSEEVENTF_RIGHTDOWN;
    inputs[1].mi.dwFlags = MOUSEEVENTF_RIGHTUP;
    SendInput(2, inputs, sizeof(INPUT));
    EXPECT_TRUE(Stays(
        "no menu is shown",
        [&](std::string&) {
          for (const HWND window : VisibleWindows(program.Process().Id())) {
            if (Control(window, "").ClassName() == "#32768") return false;
          }
          return true;
        },
        Milliseconds(300)));
  }

  // F4 opens and closes, arrows and page keys choose, Enter takes, Tab leaves. The lists are long.
  static void ExpectKeysChoose(const DialogWindow& dialog, int id, int chosen, int next) {
    const Control list = dialog[id];
    const auto becomes = [&](int index) {
      return WaitFor("the item is chosen", [&](std::string& seen) {
        seen = std::to_string(ChosenIndex(list)) + " " + list.Text();
        return ChosenIndex(list) == index && list.Text() == Item(list, index);
      });
    };
    BoxOf(list).Click();
    ASSERT_TRUE(FocusMovesTo(dialog, id));
    ASSERT_TRUE(becomes(chosen));
    for (const bool open : {false, true}) {
      if (open) Press(VK_F4);
      ASSERT_TRUE(ListBecomes(list, open));
      Press(VK_DOWN);
      EXPECT_TRUE(becomes(chosen + 1));
      Press(VK_UP);
      EXPECT_TRUE(becomes(chosen));
      Press(VK_NEXT);
      EXPECT_TRUE(WaitFor("a page on", [&](std::string&) { return ChosenIndex(list) > chosen; }));
      Press(VK_PRIOR);
      EXPECT_TRUE(
          WaitFor("a page back", [&](std::string&) { return ChosenIndex(list) <= chosen; }));
      while (ChosenIndex(list) < chosen) {
        const int before = ChosenIndex(list);
        Press(VK_DOWN);
        ASSERT_TRUE(becomes(before + 1));
      }
      for (const WORD key : {WORD{VK_HOME}, WORD{VK_END}, WORD{VK_LEFT}, WORD{VK_RIGHT}})
        Press(key);
      EXPECT_EQ(list.Text(), Item(list, ChosenIndex(list)));
    }
    Press(VK_F4);
    ASSERT_TRUE(ListBecomes(list, false));
    Press(VK_F4);
    ASSERT_TRUE(ListBecomes(list, true));
    const int before = ChosenIndex(list);
    Press(VK_UP);
    ASSERT_TRUE(becomes(before - 1));
    Press(VK_RETURN);
    ASSERT_TRUE(ListBecomes(list, false));
    EXPECT_TRUE(becomes(before - 1));
    EXPECT_TRUE(dialog.IsOpen());
    Press(VK_TAB);
    EXPECT_TRUE(FocusMovesTo(dialog, next));
  }
};

TEST_F(ChosenListsTest, NothingEditsTheChildCount) {
  Program program({.conf = "setting no = 2\nhotkey = F9\nparent & children max = 23\n"});
  const DialogWindow dialog = OpenSettings(program);
  ExpectNothingEdits(dialog, ui::cmbChildMaxCount, "  23");
  ExpectNoContextMenu(program, BoxOf(dialog[ui::cmbChildMaxCount]));
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "parent & children max"), "23");
}

TEST_F(ChosenListsTest, NothingEditsTheHotKey) {
  const Program program({.conf = "setting no = 3\nhotkey = F9\n"});
  const DialogWindow settings = OpenSettings(program);
  const DialogWindow dialog = OpenHotKeys(program, settings);
  ExpectNothingEdits(dialog, ui::cmbHotKey, "F9");
  ExpectNoContextMenu(program, BoxOf(dialog[ui::cmbHotKey]));
  dialog[ui::cmdClose0].Click();
  ASSERT_TRUE(dialog.Closes());
  EXPECT_EQ(settings[ui::lblHotKey].Text(), "F9");
}

TEST_F(ChosenListsTest, KeysChooseTheChildCount) {
  Program program({.conf = "setting no = 2\nhotkey = F9\nparent & children max = 50\n"});
  const DialogWindow dialog = OpenSettings(program);
  ExpectKeysChoose(dialog, ui::cmbChildMaxCount, 3, ui::ChkAccFromhWnd);
  const std::string chosen = dialog[ui::cmbChildMaxCount].Text();
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "parent & children max"),
            chosen.substr(chosen.find_first_not_of(' ')));
}

TEST_F(ChosenListsTest, KeysChooseTheHotKey) {
  const Program program({.conf = "setting no = 3\nhotkey = Shift+F9\n"});
  const DialogWindow settings = OpenSettings(program);
  const DialogWindow dialog = OpenHotKeys(program, settings);
  ExpectKeysChoose(dialog, ui::cmbHotKey, 25, ui::chkEnableHotT);
}

}  // namespace
}  // namespace gui
