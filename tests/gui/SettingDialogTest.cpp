// The settings dialog of the running program, worked with pointer and keys.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "DialogWindow.h"
#include "LayoutCheck.h"
#include "SettingsText.h"
#include "driver/GuiTest.h"
#include "driver/Keys.h"
#include "driver/Pointer.h"
#include "driver/Screen.h"
#include "driver/Target.h"
#include "driver/Windows.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

constexpr COLORREF kGrey = RGB(224, 224, 224);

class SettingDialogTest : public GuiTest {
 protected:
  static void GoToPage(const DialogWindow& dialog, int page) {
    dialog[ui::lblButton0 + page].Click();
    Require(WaitFor("the page is shown",
                    [&](std::string&) { return dialog[ui::FrList0 + page].IsVisible(); }));
  }

  static void ClickUntil(const Control& box, bool checked) {
    box.Click();
    Require(WaitFor("the box is " + std::string(checked ? "" : "not ") + "checked",
                    [&](std::string&) { return box.IsChecked() == checked; }));
  }

  // Types into the box after emptying it with the backspace key.
  static void Retype(const Control& box, std::initializer_list<WORD> virtualKeys) {
    box.Click();
    Require(WaitFor("the box has the focus", [&](std::string&) { return box.HasFocus(); }));
    keys::Stroke({VK_END}, Milliseconds(20));
    while (!box.Text().empty()) {
      const std::string before = box.Text();
      keys::Stroke({VK_BACK}, Milliseconds(20));
      Require(WaitFor("a character goes", [&](std::string&) { return box.Text() != before; }));
    }
    for (const WORD key : virtualKeys) keys::Stroke({key}, Milliseconds(20));
  }

  static int FocusOf(const DialogWindow& dialog) {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(dialog.Window().Handle(), nullptr), &info);
    if (info.hwndFocus == nullptr) return 0;
    // The box in a drop-down list counts as the list.
    const HWND parent = GetAncestor(info.hwndFocus, GA_PARENT);
    const bool inList = Control(parent, "").ClassName() == "ComboBox";
    return GetDlgCtrlID(inList ? parent : info.hwndFocus);
  }

  static testing::AssertionResult FocusMovesTo(const DialogWindow& dialog, int id) {
    return WaitFor("the focus moves to " + std::to_string(id), [&](std::string& seen) {
      seen = std::to_string(FocusOf(dialog));
      return FocusOf(dialog) == id;
    });
  }
};

struct BoxCase {
  int page;
  int id;
  const char* key;
  bool before;  // by default
};

constexpr BoxCase kBoxes[] = {
    {0, ui::chkTreeViewIndent, "treeview indent", true},
    {1, ui::chkDispText, "disp text", false},
    {2, ui::ChkAccFromhWnd, "from hwnd", false},
    {3, ui::chkContinue, "continue", false},
    {3, ui::chkAutoClose, "auto close", false},
    {3, ui::chkChime, "chime", true},
    {3, ui::chkShift, "shift", false},
    {3, ui::chkDispTop, "disp Top", true},
    {3, ui::chkToFile, "to file", false},
    {3, ui::chkAutoStart, "auto start", false},
};

struct OptionCase {
  int page;
  int first;
  int chosen;
  const char* key;
};

constexpr OptionCase kOptions[] = {
    {0, ui::Opt_Clipboard0, 2, "clipboard"},
    {0, ui::OptHint0, 1, "hint"},
    {0, ui::OptListview0, 2, "listview col"},
    {2, ui::OptAct0, 3, "action test"},
};

struct ListCase {
  int page;
  int id;
  int index;
  const char* text;
  const char* key;
  const char* value;
};

constexpr ListCase kLists[] = {
    {1, ui::cmbStLevel, 3, "三つ上から", "start node", "3"},
    {2, ui::cmbAccNameMax, 1, "  20", "accname max", "20"},
    {2, ui::cmbChildMaxCount, 4, " 100", "parent & children max", "100"},
    {3, ui::cmbAutoStop, 6, " 7", "auto stop time", "7"},
};

TEST_F(SettingDialogTest, EveryControlReachesTheFileAndComesBack) {
  std::filesystem::path folder;
  {
    Program program;
    folder = program.Folder();
    const DialogWindow dialog = OpenSettings(program);
    for (int page = 0; page < 4; ++page) {
      GoToPage(dialog, page);
      for (const ListCase& list : kLists) {
        if (list.page != page) continue;
        Choose(dialog[list.id], list.index);
        EXPECT_TRUE(dialog[list.id].TextBecomes(list.text));
      }
      for (const BoxCase& box : kBoxes) {
        if (box.page == page) ClickUntil(dialog[box.id], !box.before);
      }
      for (const OptionCase& group : kOptions) {
        if (group.page == page) ClickUntil(dialog[group.first + group.chosen], true);
      }
    }
    Retype(dialog[ui::txtShift0], {VK_OEM_MINUS, '1', '2'});
    Retype(dialog[ui::txtShift1], {'4', '5'});
    dialog[ui::cmdClose].Click();
    ASSERT_TRUE(dialog.Closes());
    // The record alone has changed so far.
    EXPECT_FALSE(std::filesystem::exists(program.ConfFile()));
    ASSERT_EQ(program.CloseAndWait(), 0U);

    const auto lines = program.ConfLines();
    for (const BoxCase& box : kBoxes) EXPECT_EQ(ValueOf(lines, box.key), box.before ? "0" : "1");
    for (const OptionCase& group : kOptions) {
      EXPECT_EQ(ValueOf(lines, group.key), std::to_string(group.chosen));
    }
    for (const ListCase& list : kLists) EXPECT_EQ(ValueOf(lines, list.key), list.value);
    EXPECT_EQ(ValueOf(lines, "shiftx"), "-12");
    EXPECT_EQ(ValueOf(lines, "shifty"), "45");
    EXPECT_EQ(ValueOf(lines, "setting no"), "3");
    EXPECT_EQ(ValueOf(lines, "auto stop"), "0");
  }
  const Program again({.arguments = "no_start", .folder = folder});
  const DialogWindow dialog = OpenSettings(again);
  EXPECT_TRUE(dialog[ui::FrList3].IsVisible());
  for (const BoxCase& box : kBoxes) EXPECT_EQ(dialog[box.id].IsChecked(), !box.before) << box.id;
  for (const OptionCase& group : kOptions) {
    EXPECT_TRUE(dialog[group.first + group.chosen].IsChecked()) << group.key;
  }
  for (const ListCase& list : kLists) EXPECT_EQ(dialog[list.id].Text(), list.text);
  EXPECT_EQ(dialog[ui::txtShift0].Text(), "-12");
  EXPECT_EQ(dialog[ui::txtShift1].Text(), "45");
  EXPECT_TRUE(dialog[ui::frShift].IsVisible());
}

TEST_F(SettingDialogTest, ChosenPagesButtonIsHighlighted) {
  const Program program;
  const DialogWindow dialog = OpenSettings(program);
  for (const int page : {2, 1, 3, 0}) {
    GoToPage(dialog, page);
    for (int i = 0; i < 4; ++i) {
      EXPECT_EQ(dialog[ui::FrList0 + i].IsVisible(), i == page);
      const COLORREF expected = i == page ? GetSysColor(COLOR_HIGHLIGHT) : kGrey;
      EXPECT_TRUE(WaitFor("the button has its colour",
                          [&](std::string&) {
                            const Picture button =
                                Picture::Of(dialog[ui::lblButton0 + i].Rectangle());
                            return button.At(6, 6) == expected;
                          }))
          << "page " << page << ", button " << i;
    }
  }
}

TEST_F(SettingDialogTest, CloseButtonRemembersPlaceAndPage) {
  Program program({.conf = "setting left = 1500\nsetting top = 750\nsetting no = 1\n"});
  {
    const DialogWindow dialog = OpenSettings(program);
    EXPECT_EQ(dialog.Window().Rectangle().left, 100);
    EXPECT_EQ(dialog.Window().Rectangle().top, 50);
    EXPECT_TRUE(dialog[ui::FrList1].IsVisible());
    EXPECT_NE(GetWindowLongPtrW(dialog.Window().Handle(), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
    GoToPage(dialog, 2);
    const RECT at = dialog.Window().Rectangle();
    pointer::Drag({at.left + 100, at.top + 12}, {at.left + 160, at.top + 42});
    ASSERT_TRUE(WaitFor("the dialog has moved",
                        [&](std::string&) { return dialog.Window().Rectangle().left == 160; }));
    dialog[ui::cmdClose].Click();
    ASSERT_TRUE(dialog.Closes());
  }
  const DialogWindow dialog = OpenSettings(program);
  EXPECT_EQ(dialog.Window().Rectangle().left, 160);
  EXPECT_EQ(dialog.Window().Rectangle().top, 80);
  EXPECT_TRUE(dialog[ui::FrList2].IsVisible());
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "setting left"), "2400");
  EXPECT_EQ(ValueOf(program.ConfLines(), "setting top"), "1200");
  EXPECT_EQ(ValueOf(program.ConfLines(), "setting no"), "2");
}

TEST_F(SettingDialogTest, CloseBoxForgetsThePlace) {
  const Program program({.conf = "setting left = 1500\nsetting top = 750\n"});
  {
    const DialogWindow dialog = OpenSettings(program);
    SetWindowPos(dialog.Window().Handle(), nullptr, 300, 200, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ASSERT_TRUE(WaitFor("the dialog has moved",
                        [&](std::string&) { return dialog.Window().Rectangle().left == 300; }));
    dialog.Close();
    ASSERT_TRUE(dialog.Closes());
  }
  const DialogWindow dialog = OpenSettings(program);
  EXPECT_EQ(dialog.Window().Rectangle().left, 100);
  EXPECT_EQ(dialog.Window().Rectangle().top, 50);
}

TEST_F(SettingDialogTest, CloseButtonKeepsItsCorner) {
  const Program program;
  const DialogWindow dialog = OpenSettings(program);
  const RECT page = dialog[ui::FrList0].Rectangle();
  SetWindowPos(dialog.Window().Handle(), nullptr, 0, 0, 500, 620, SWP_NOMOVE | SWP_NOZORDER);
  ASSERT_TRUE(WaitFor("the dialog is larger",
                      [&](std::string&) { return dialog.Window().Size().cx == 500; }));
  const RECT inner = InnerArea(dialog.Window());
  EXPECT_EQ(dialog[ui::cmdClose].Rectangle().right, inner.right - 10);
  EXPECT_EQ(dialog[ui::cmdClose].Rectangle().bottom, inner.bottom - 10);
  const RECT pageAfter = dialog[ui::FrList0].Rectangle();
  EXPECT_TRUE(EqualRect(&page, &pageAfter));
}

TEST_F(SettingDialogTest, AutoStopBoxTakesDigitsOnly) {
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

TEST_F(SettingDialogTest, ChildCountTakesNoKeysButItsListDoes) {
  Program program({.conf = "setting no = 2\n"});
  const DialogWindow dialog = OpenSettings(program);
  const Control list = dialog[ui::cmbChildMaxCount];
  BoxOf(list).Click();
  ASSERT_TRUE(FocusMovesTo(dialog, ui::cmbChildMaxCount));
  for (const int key : {int{'5'}, VK_BACK, VK_DELETE, VK_DOWN, VK_UP, VK_END}) {
    keys::Stroke({static_cast<WORD>(key)}, Milliseconds(20));
  }
  EXPECT_TRUE(list.TextStays("  10", Milliseconds(200)));
  // By keyboard: open the list, go down, take it.
  keys::Stroke({VK_MENU, VK_DOWN}, Milliseconds(50));
  ASSERT_TRUE(WaitFor("the list is open", [&](std::string&) {
    return SendMessageW(list.Handle(), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
  }));
  keys::Stroke({VK_DOWN}, Milliseconds(20));
  keys::Stroke({VK_RETURN}, Milliseconds(20));
  EXPECT_TRUE(list.TextBecomes("  50"));
  EXPECT_TRUE(WaitFor("the list is closed", [&](std::string&) {
    return SendMessageW(list.Handle(), CB_GETDROPPEDSTATE, 0, 0) == FALSE;
  }));
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "parent & children max"), "50");
}

TEST_F(SettingDialogTest, ShiftBoxesTakeNumbersOnly) {
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

TEST_F(SettingDialogTest, TabVisitsWhatThePageShows) {
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

TEST_F(SettingDialogTest, WorksByKeyboardAlone) {
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
  keys::Stroke({VK_ESCAPE}, Milliseconds(20));
  EXPECT_TRUE(dialog.Closes());
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "clipboard"), "1");
  EXPECT_EQ(ValueOf(program.ConfLines(), "treeview indent"), "0");
  EXPECT_EQ(ValueOf(program.ConfLines(), "setting no"), "2");
}

TEST_F(SettingDialogTest, TipsAppear) {
  const Program program({.conf = "setting no = 3\n"});
  const DialogWindow dialog = OpenSettings(program);
  const auto tip = [&]() -> std::string {
    for (HWND window : VisibleWindows(program.Process().Id())) {
      const Control control(window, "tool tip");
      if (control.ClassName() == "tooltips_class32") return control.Text();
    }
    return "(none shown)";
  };
  pointer::MoveTo(dialog[ui::chkToFile].Center());
  EXPECT_TRUE(TextBecomes(
      "the tool tip",
      "取得文字数が65000文字を超える時はデスクトップにテキストファイルとして出力する", tip));
  pointer::MoveTo(BoxOf(dialog[ui::cmbAutoStop]).Center());
  EXPECT_TRUE(TextBecomes(
      "the tool tip", "マウスの動きが止まってから指定秒後に自動停止（空白は自動停止無し）", tip));
}

TEST_F(SettingDialogTest, ChangeActsOnTheRunningCapture) {
  const Fixture fixture("title=t edit=文");
  const Program program({.conf = "setting no = 2\n"});
  const DialogWindow dialog = OpenSettings(program);
  program.StartCapture();
  pointer::MoveTo(fixture["edit"].Center());
  ASSERT_TRUE(program.TopPane().TextBecomes("文"));
  dialog[ui::OptAct2].PressButton();
  EXPECT_TRUE(program[ui::lblStatus].TextBecomes("ESCで停止\r\nCtrl で Select 1 Test"));
  // The report is made anew although the pointer rests.
  fixture["edit"].SetText("新しい文");
  dialog[ui::OptAct0].PressButton();
  EXPECT_TRUE(program.TopPane().TextBecomes("新しい文"));
}

TEST_F(SettingDialogTest, ProgramEndsWithTheDialogOpen) {
  Program program;
  const DialogWindow dialog = OpenSettings(program);
  dialog[ui::Opt_Clipboard3].PressButton();
  ASSERT_TRUE(WaitFor("the option is chosen",
                      [&](std::string&) { return dialog[ui::Opt_Clipboard3].IsChecked(); }));
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "clipboard"), "3");
}

}  // namespace
}  // namespace gui
