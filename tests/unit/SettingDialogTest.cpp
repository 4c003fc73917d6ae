// The settings dialog in the test's own process: what each control does to the record.
#include <gtest/gtest.h>

#include "DialogDriving.h"
#include "SettingDialogFixture.h"
#include "ui/ControlIds.h"

namespace ui {
namespace {

using S = settings::Settings;

class SettingDialogTest : public SettingDialogFixture {};

TEST_F(SettingDialogTest, ShowsCaptionsAndTipsOfItsTable) {
  Open();
  EXPECT_EQ(WindowText(dialog_.Handle()), L"設定");
  for (const SettingControl& control : SettingControls()) {
    const HWND window = Control(control.row.id);
    ASSERT_NE(window, nullptr) << control.row.id;
    const std::wstring tip = control.toolTip == nullptr ? L"" : control.toolTip;
    EXPECT_EQ(TipOf(dialog_.Handle(), window), tip) << control.row.id;
    if (control.row.caption[0] == L'\0') continue;
    EXPECT_EQ(WindowText(window), control.row.caption) << control.row.id;
  }
  EXPECT_EQ(Text(lblHotKey), L"F5");
  // The pointer over a list is over the box in it.
  EXPECT_EQ(TipOf(dialog_.Handle(), BoxOfList(Control(cmbAutoStop))),
            FindSettingControl(cmbAutoStop)->toolTip);
}

TEST_F(SettingDialogTest, IsATopmostDialogAtItsPlace) {
  Open();
  EXPECT_NE(GetWindowLongPtrW(dialog_.Handle(), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
  RECT place{};
  GetWindowRect(dialog_.Handle(), &place);
  EXPECT_EQ(place.left, 100);
  EXPECT_EQ(place.top, 40);
}

TEST_F(SettingDialogTest, PageButtonShowsItsPageAndKeepsIt) {
  settings_.settingNo = 2;
  Open();
  for (const int page : {2, 0, 3, 1}) {
    if (page != 2) Click(Control(lblButton0 + page));
    EXPECT_EQ(settings_.settingNo, page);
    for (int i = 0; i < kSettingPages; ++i) EXPECT_EQ(IsShown(FrList0 + i), i == page);
  }
}

TEST_F(SettingDialogTest, PageOutOfRangeOpensTheFirstAndStaysUntilOneIsChosen) {
  for (const std::int32_t page : {7, 4, -1}) {
    settings_.settingNo = page;
    Open();
    EXPECT_TRUE(IsShown(FrList0));
    EXPECT_EQ(settings_.settingNo, page);
    Click(Control(cmdClose));
    EXPECT_EQ(settings_.settingNo, page);
  }
  Open();
  Click(Control(lblButton0));
  EXPECT_EQ(settings_.settingNo, 0);
}

struct BoxCase {
  int id;
  std::int32_t S::*setting;
};
constexpr BoxCase kBoxes[] = {
    {chkContinue, &S::continueCapture},
    {chkAutoClose, &S::autoClose},
    {chkChime, &S::chime},
    {chkShift, &S::shift},
    {chkDispTop, &S::dispTop},
    {chkToFile, &S::toFile},
    {chkAutoStart, &S::autoStart},
    {chkDispText, &S::dispText},
    {ChkAccFromhWnd, &S::fromHwnd},
    {chkTreeViewIndent, &S::treeviewIndent},
    {chkReadWhole, &S::readWhole},
};

TEST_F(SettingDialogTest, CheckBoxesStoreAtOnce) {
  Open();
  for (const BoxCase& box : kBoxes) {
    for (const std::int32_t value : {1, 0}) {
      S expected = settings_;
      expected.*box.setting = value;
      Click(Control(box.id));
      EXPECT_EQ(settings_, expected) << box.id;
    }
  }
}

TEST_F(SettingDialogTest, CheckBoxesShowTheRecord) {
  for (const BoxCase& box : kBoxes) settings_.*box.setting = 1;
  Open();
  for (const BoxCase& box : kBoxes) EXPECT_EQ(BoxValue(Control(box.id)), 1) << box.id;
}

TEST_F(SettingDialogTest, AnythingButZeroTicksACheckBox) {
  for (const std::int32_t value : {2, -1}) {
    for (const BoxCase& box : kBoxes) settings_.*box.setting = value;
    Open();
    EXPECT_FALSE(IsShown(frShift));  // only 1 shifts
    for (const BoxCase& box : kBoxes) EXPECT_EQ(BoxValue(Control(box.id)), 1) << box.id;
    CloseBox();
  }
}

TEST_F(SettingDialogTest, OnlyAClickMakesASettingZeroOrOne) {
  for (const BoxCase& box : kBoxes) settings_.*box.setting = 2;
  Open();
  for (const BoxCase& box : kBoxes) {
    EXPECT_EQ(settings_.*box.setting, 2) << box.id;
    for (const std::int32_t value : {0, 1}) {
      Click(Control(box.id));
      EXPECT_EQ(settings_.*box.setting, value) << box.id;
    }
  }
}

TEST_F(SettingDialogTest, OpeningAndClosingChangesNothing) {
  for (const std::int32_t value : {-2147483647 - 1, -3, 2, 77, 2147483647}) {
    for (const SettingControl& control : SettingControls()) {
      if (control.setting != nullptr) settings_.*control.setting = value;
    }
    settings_.settingNo = value;
    const S before = settings_;
    Open();
    EXPECT_EQ(settings_, before) << value;
    CloseBox();
    EXPECT_EQ(settings_, before) << value;
  }
}

struct OptionCase {
  int first;
  int count;
  std::int32_t S::*setting;
};
constexpr OptionCase kOptions[] = {
    {Opt_Clipboard0, 4, &S::clipboard},
    {OptHint0, 2, &S::hint},
    {OptListview0, 3, &S::listviewCol},
    {OptAct0, 4, &S::actionTest},
};

TEST_F(SettingDialogTest, OptionsStoreTheirIndexAtOnce) {
  Open();
  for (const OptionCase& group : kOptions) {
    for (int value = group.count - 1; value >= 0; --value) {
      S expected = settings_;
      expected.*group.setting = value;
      Click(Control(group.first + value));
      EXPECT_EQ(settings_, expected) << group.first + value;
    }
  }
}

TEST_F(SettingDialogTest, OptionsShowTheRecord) {
  for (const OptionCase& group : kOptions) settings_.*group.setting = group.count - 1;
  Open();
  for (const OptionCase& group : kOptions) {
    for (int value = 0; value < group.count; ++value) {
      EXPECT_EQ(BoxValue(Control(group.first + value)), value == group.count - 1 ? 1 : 0);
    }
  }
}

TEST_F(SettingDialogTest, ShiftShowsItsBoxes) {
  settings_.shiftx = -20;
  settings_.shifty = 30;
  Open();
  EXPECT_EQ(Text(txtShift0), L"-20");
  EXPECT_EQ(Text(txtShift1), L"30");
  EXPECT_FALSE(IsShown(frShift));
  Click(Control(chkShift));
  EXPECT_TRUE(IsShown(frShift));
  Click(Control(chkShift));
  EXPECT_FALSE(IsShown(frShift));
}

TEST_F(SettingDialogTest, LeavingEitherShiftBoxStoresBoth) {
  settings_.shift = 1;
  settings_.settingNo = 3;
  Open();
  for (const int left : {txtShift0, txtShift1}) {
    settings_.shiftx = settings_.shifty = 77;
    SetFocus(Control(left));
    Type(Control(txtShift0), L"5-");
    Type(Control(txtShift1), L"-");
    EXPECT_EQ(settings_.shiftx, 77);
    SetFocus(Control(cmdClose));
    EXPECT_EQ(settings_.shiftx, 5);
    EXPECT_EQ(settings_.shifty, 0);
  }
}

TEST_F(SettingDialogTest, ShiftBoxesTakeDigitsAndMinus) {
  Open();
  Type(Control(txtShift0), L"a-1.2 3");
  EXPECT_EQ(Text(txtShift0), L"-123");
}

TEST_F(SettingDialogTest, ClosingLeavesTheShiftBoxToo) {
  settings_.shift = 1;
  settings_.settingNo = 3;
  Open();
  SetFocus(Control(txtShift1));
  Type(Control(txtShift1), L"-44");
  CloseBox();
  EXPECT_EQ(settings_.shifty, -44);
}

TEST_F(SettingDialogTest, ChangeAsksForANewReportWhileACaptureRuns) {
  Open();
  Click(Control(chkTreeViewIndent));
  EXPECT_EQ(state_.RefreshRequest, 0);
  state_.CaptureRunning = true;
  Click(Control(OptListview1));
  EXPECT_EQ(state_.RefreshRequest, 1);
  state_.RefreshRequest = 0;
  Click(Control(OptListview1));  // is chosen already
  EXPECT_EQ(state_.RefreshRequest, 0);
}

TEST_F(SettingDialogTest, CloseButtonKeepsTheCornerForTheNextTime) {
  Open();
  SetWindowPos(dialog_.Handle(), nullptr, 222, 111, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  Click(Control(cmdClose));
  EXPECT_EQ(dialog_.Handle(), nullptr);
  EXPECT_EQ(closed_, 1);
  EXPECT_EQ(settings_.settingLeft, 222 * 15);
  EXPECT_EQ(settings_.settingTop, 111 * 15);
  Open();
  RECT place{};
  GetWindowRect(dialog_.Handle(), &place);
  EXPECT_EQ(place.left, 222);
  EXPECT_EQ(place.top, 111);
}

TEST_F(SettingDialogTest, CloseBoxLeavesTheOldCorner) {
  Open();
  SetWindowPos(dialog_.Handle(), nullptr, 222, 111, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  CloseBox();
  EXPECT_EQ(dialog_.Handle(), nullptr);
  EXPECT_EQ(closed_, 1);
  EXPECT_EQ(settings_.settingLeft, 1500);
  EXPECT_EQ(settings_.settingTop, 600);
}

TEST_F(SettingDialogTest, EscLeavesItOpen) {
  Open();
  SendMessageW(dialog_.Handle(), WM_COMMAND, IDCANCEL, 0);
  EXPECT_NE(dialog_.Handle(), nullptr);
  EXPECT_EQ(closed_, 0);
}

TEST_F(SettingDialogTest, CloseButtonFollowsTheCorner) {
  Open();
  const auto place = [this](int id) {
    RECT at{};
    GetWindowRect(Control(id), &at);
    MapWindowPoints(nullptr, dialog_.Handle(), reinterpret_cast<POINT*>(&at), 2);
    return at;
  };
  const RECT page = place(FrList0);
  SetWindowPos(dialog_.Handle(), nullptr, 0, 0, 600, 700, SWP_NOMOVE | SWP_NOZORDER);
  RECT inner{};
  GetClientRect(dialog_.Handle(), &inner);
  const RECT button = place(cmdClose);
  EXPECT_EQ(button.left, inner.right - 76 - 10);
  EXPECT_EQ(button.top, inner.bottom - 25 - 10);
  EXPECT_EQ(button.right, inner.right - 10);
  EXPECT_EQ(button.bottom, inner.bottom - 10);
  const RECT pageAfter = place(FrList0);
  EXPECT_TRUE(EqualRect(&page, &pageAfter));
}

TEST_F(SettingDialogTest, ANewDpiScalesEverything) {
  Open();
  const RECT suggested{10, 20, 500, 820};
  SendMessageW(dialog_.Handle(), WM_DPICHANGED, MAKEWPARAM(144, 144),
               reinterpret_cast<LPARAM>(&suggested));
  RECT now{};
  GetWindowRect(dialog_.Handle(), &now);
  EXPECT_TRUE(EqualRect(&now, &suggested));
  RECT button{};
  GetClientRect(Control(lblButton0), &button);
  EXPECT_NEAR(button.right, 1350 / 10, 1);  // both edges are rounded
  LOGFONTW font{};
  GetObjectW(reinterpret_cast<HFONT>(SendMessageW(Control(chkShift), WM_GETFONT, 0, 0)),
             sizeof font, &font);
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, 144);
  EXPECT_EQ(font.lfHeight, metrics.lfMessageFont.lfHeight);
}

TEST_F(SettingDialogTest, ShowingItAgainOpensNoSecondOne) {
  Open();
  const HWND first = dialog_.Handle();
  Open();
  EXPECT_EQ(dialog_.Handle(), first);
}

}  // namespace
}  // namespace ui
