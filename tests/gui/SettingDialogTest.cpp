// The settings dialog of the running program, used with pointer and keys.
#include <windows.h>

#include <gtest/gtest.h>

#include "DialogWindow.h"
#include "LayoutCheck.h"
#include "SettingsText.h"
#include "bed/Needs.h"
#include "driver/GuiTest.h"
#include "driver/Pointer.h"
#include "driver/Resolution.h"
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

TEST_F(SettingDialogTest, PlaceIsStoredInTwipsOfTheResolution) {
  NEEDS(bed::ResolutionAtOnce());
  const Resolution resolution(144);  // 10 twips to a pixel
  Program program({.conf = "setting left = 1000\nsetting top = 500\n"});
  const DialogWindow dialog = OpenSettings(program);
  EXPECT_EQ(dialog.Window().Rectangle().left, 100);
  EXPECT_EQ(dialog.Window().Rectangle().top, 50);
  SetWindowPos(dialog.Window().Handle(), nullptr, 222, 111, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  ASSERT_TRUE(WaitFor("the dialog has moved",
                      [&](std::string&) { return dialog.Window().Rectangle().left == 222; }));
  dialog[ui::cmdClose].Click();
  ASSERT_TRUE(dialog.Closes());
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "setting left"), "2220");
  EXPECT_EQ(ValueOf(program.ConfLines(), "setting top"), "1110");
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
  // The report is made again although the pointer rests.
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
