// The drop-down lists of the settings dialog: what they show, and which keys they take.
#include <gtest/gtest.h>

#include "DialogDriving.h"
#include "SettingDialogFixture.h"
#include "ui/ControlIds.h"

namespace ui {
namespace {

class SettingListsTest : public SettingDialogFixture {};

TEST_F(SettingListsTest, AutoStopIsChosenFromTheList) {
  settings_.autoStop = 0;
  Open();
  ChooseItem(Control(cmbAutoStop), 7);
  EXPECT_EQ(settings_.autoStopTime, 10);
  EXPECT_EQ(settings_.autoStop, 0);  // that is the main window's box
  EXPECT_TRUE(IsShown(chkAutoClose));
  EXPECT_TRUE(IsShown(chkChime));
  ChooseItem(Control(cmbAutoStop), 0);
  EXPECT_EQ(settings_.autoStopTime, 0);
  EXPECT_FALSE(IsShown(chkAutoClose));
  EXPECT_FALSE(IsShown(chkChime));
}

TEST_F(SettingListsTest, AutoStopIsTyped) {
  Open();
  EXPECT_FALSE(IsShown(chkChime));
  Type(Control(cmbAutoStop), L"x2-5 y");
  EXPECT_EQ(Text(cmbAutoStop), L"25");
  EXPECT_EQ(settings_.autoStopTime, 25);
  EXPECT_TRUE(IsShown(chkChime));
  Type(Control(cmbAutoStop), L"");
  EXPECT_EQ(settings_.autoStopTime, 0);
  EXPECT_FALSE(IsShown(chkChime));
}

TEST_F(SettingListsTest, AutoStopIsShownRightAligned) {
  struct {
    std::int32_t value;
    const wchar_t* text;
    int chosen;
  } const cases[] = {{0, L"", 0}, {5, L" 5", 5}, {10, L"10", 7}, {8, L" 8", -1}, {120, L"120", -1}};
  for (const auto& one : cases) {
    settings_.autoStopTime = one.value;
    Open();
    EXPECT_EQ(Text(cmbAutoStop), one.text);
    EXPECT_EQ(SendMessageW(Control(cmbAutoStop), CB_GETCURSEL, 0, 0), one.chosen);
    EXPECT_EQ(IsShown(chkAutoClose), one.value != 0);
    EXPECT_EQ(IsShown(chkChime), one.value != 0);
    CloseBox();
  }
}

TEST_F(SettingListsTest, StartNodeIsTheItemsIndex) {
  settings_.startNode = 2;
  Open();
  EXPECT_EQ(SendMessageW(Control(cmbStLevel), CB_GETCURSEL, 0, 0), 2);
  ChooseItem(Control(cmbStLevel), 4);
  EXPECT_EQ(settings_.startNode, 4);
}

TEST_F(SettingListsTest, CountsAreShownInFourCharacters) {
  settings_.accnameMax = 50;
  settings_.parentChildrenMax = 23;
  Open();
  EXPECT_EQ(Text(cmbAccNameMax), L"  50");
  EXPECT_EQ(SendMessageW(Control(cmbAccNameMax), CB_GETCURSEL, 0, 0), 3);
  EXPECT_EQ(Text(cmbChildMaxCount), L"  23");
  EXPECT_EQ(SendMessageW(Control(cmbChildMaxCount), CB_GETCURSEL, 0, 0), -1);
  ChooseItem(Control(cmbAccNameMax), 5);
  EXPECT_EQ(settings_.accnameMax, 100);
  ChooseItem(Control(cmbChildMaxCount), 7);
  EXPECT_EQ(settings_.parentChildrenMax, 9999);
}

TEST_F(SettingListsTest, ChildCountTakesNoTypingInItsClosedOrOpenList) {
  settings_.parentChildrenMax = 10;
  settings_.settingNo = 2;
  Open();
  const HWND list = Control(cmbChildMaxCount);
  const HWND box = BoxOfList(list);
  SetFocus(box);
  for (const bool open : {false, true}) {
    SendMessageW(list, CB_SHOWDROPDOWN, open ? TRUE : FALSE, 0);
    Type(list, L"12\b\x03\x16\x18\x1a");
    for (const int key : {int{'5'}, VK_DELETE, VK_BACK, VK_INSERT, VK_CLEAR}) {
      SendMessageW(box, EM_SETSEL, 0, -1);
      SendMessageW(box, WM_KEYDOWN, static_cast<WPARAM>(key), 0);
    }
    for (const UINT message :
         {UINT{WM_CUT}, UINT{WM_CLEAR}, UINT{WM_PASTE}, UINT{WM_UNDO}, UINT{EM_UNDO}}) {
      SendMessageW(box, message, 0, 0);
    }
    SendMessageW(box, WM_SYSKEYDOWN, VK_BACK, 0x20000000);
    SendMessageW(box, WM_SYSCHAR, VK_BACK, 0x20000000);
    EXPECT_EQ(Text(cmbChildMaxCount), L"  10") << open;
    EXPECT_EQ(settings_.parentChildrenMax, 10) << open;
    EXPECT_EQ(SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0) != FALSE, open);
  }
}

TEST_F(SettingListsTest, ArrowsChooseInTheClosedList) {
  settings_.parentChildrenMax = 10;
  Open();
  SendMessageW(BoxOfList(Control(cmbChildMaxCount)), WM_KEYDOWN, VK_DOWN, 0);
  EXPECT_EQ(settings_.parentChildrenMax, 50);
  EXPECT_EQ(Text(cmbChildMaxCount), L"  50");
}

TEST_F(SettingListsTest, OpenListIsWorkedWithTheKeys) {
  settings_.parentChildrenMax = 10;
  settings_.settingNo = 2;
  Open();
  const HWND list = Control(cmbChildMaxCount);
  const HWND box = BoxOfList(list);
  SetFocus(box);
  SendMessageW(list, CB_SHOWDROPDOWN, TRUE, 0);
  SendMessageW(box, WM_KEYDOWN, VK_DOWN, 0);
  SendMessageW(box, WM_KEYDOWN, VK_RETURN, 0);
  SendMessageW(box, WM_CHAR, L'\r', 0);
  EXPECT_FALSE(SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0));
  EXPECT_EQ(settings_.parentChildrenMax, 50);
  EXPECT_EQ(Text(cmbChildMaxCount), L"  50");
}

}  // namespace
}  // namespace ui
