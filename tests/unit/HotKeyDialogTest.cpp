// The hot-key dialog in the test's own process.
#include <gtest/gtest.h>

#include "DialogDriving.h"
#include "settings/MySub_HotKey.h"
#include "ui/ControlIds.h"
#include "ui/frmOption.h"

namespace ui {
namespace {

class HotKeyDialogTest : public testing::Test {
 protected:
  HotKeyDialogTest()
      : owner_(CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                               nullptr, nullptr, nullptr)) {}
  ~HotKeyDialogTest() override { DestroyWindow(owner_); }

  void Open(const std::wstring& hotkey, std::int32_t enableHotT = 1) {
    settings_.hotkey = hotkey;
    settings_.enableHotT = enableHotT;
    dialog_.Show(owner_);
    ASSERT_NE(dialog_.Handle(), nullptr);
  }
  HWND Control(int id) const { return FindControl(dialog_.Handle(), id); }
  LRESULT Chosen() const { return SendMessageW(Control(cmbHotKey), CB_GETCURSEL, 0, 0); }

  HWND owner_;
  settings::Settings settings_;
  int closed_ = 0;
  frmOption dialog_{settings_, [this] { ++closed_; }};
};

TEST_F(HotKeyDialogTest, ListsEveryNameInOrder) {
  Open(L"F3", 0);
  ASSERT_EQ(SendMessageW(Control(cmbHotKey), CB_GETCOUNT, 0, 0), 29);
  for (int i = 0; i < 29; ++i) {
    EXPECT_EQ(ItemText(Control(cmbHotKey), i),
              MySub_HotKey::HotKeyNames[static_cast<std::size_t>(i)]);
  }
  EXPECT_EQ(Chosen(), 5);
  EXPECT_EQ(WindowText(Control(cmbHotKey)), L"F3");
  EXPECT_EQ(BoxValue(Control(chkEnableHotT)), 0);
}

TEST_F(HotKeyDialogTest, FirstButtonStoresBothSettings) {
  Open(L"ESC", 1);
  EXPECT_EQ(WindowText(Control(cmdClose0)), L"OK");
  ChooseItem(Control(cmbHotKey), 17);
  Click(Control(chkEnableHotT));
  EXPECT_EQ(settings_.hotkey, L"ESC");
  Click(Control(cmdClose0));
  EXPECT_EQ(settings_.hotkey, L"Shift+F1");
  EXPECT_EQ(settings_.enableHotT, 0);
  EXPECT_EQ(dialog_.Handle(), nullptr);
  EXPECT_EQ(closed_, 1);
}

TEST_F(HotKeyDialogTest, AnythingButZeroTicksTheBox) {
  for (const std::int32_t value : {5, -1}) {
    Open(L"F9", value);
    EXPECT_EQ(BoxValue(Control(chkEnableHotT)), 1);
    Click(Control(cmdClose1));
    EXPECT_EQ(settings_.enableHotT, value);
  }
}

TEST_F(HotKeyDialogTest, OkStoresABoxThatWasClickedAndLeavesTheOther) {
  Open(L"F9", 5);
  Click(Control(cmdClose0));
  EXPECT_EQ(settings_.enableHotT, 5);
  Open(L"F9", 5);
  Click(Control(chkEnableHotT));
  Click(Control(chkEnableHotT));
  Click(Control(cmdClose0));
  EXPECT_EQ(settings_.enableHotT, 1);
  // An earlier click does not count.
  Open(L"F9", 5);
  Click(Control(chkEnableHotT));
  Click(Control(cmdClose1));
  Open(L"F9", 5);
  Click(Control(cmdClose0));
  EXPECT_EQ(settings_.enableHotT, 5);
}

TEST_F(HotKeyDialogTest, EmptyNameCanBeChosen) {
  Open(L"ESC");
  ChooseItem(Control(cmbHotKey), 0);
  Click(Control(cmdClose0));
  EXPECT_EQ(settings_.hotkey, L"");
  Open(L"");
  EXPECT_EQ(Chosen(), 0);
}

TEST_F(HotKeyDialogTest, OtherWaysToCloseStoreNothing) {
  for (int way = 0; way < 2; ++way) {
    Open(L"F9", 1);
    ChooseItem(Control(cmbHotKey), 3);
    Click(Control(chkEnableHotT));
    if (way == 0) Click(Control(cmdClose1));
    if (way == 1) SendMessageW(dialog_.Handle(), WM_CLOSE, 0, 0);
    EXPECT_EQ(dialog_.Handle(), nullptr);
    EXPECT_EQ(closed_, way + 1);
    EXPECT_EQ(settings_.hotkey, L"F9");
    EXPECT_EQ(settings_.enableHotT, 1);
  }
}

TEST_F(HotKeyDialogTest, EscLeavesItOpen) {
  Open(L"F9");
  SendMessageW(dialog_.Handle(), WM_COMMAND, IDCANCEL, 0);
  EXPECT_NE(dialog_.Handle(), nullptr);
  EXPECT_EQ(closed_, 0);
}

TEST_F(HotKeyDialogTest, SecondButtonIsCaptionedCancel) {
  Open(L"F9");
  EXPECT_EQ(WindowText(Control(cmdClose1)), L"キャンセル");
}

TEST_F(HotKeyDialogTest, UnknownNameIsShownAndKept) {
  Open(L"Ctrl+Q");
  EXPECT_EQ(WindowText(Control(cmbHotKey)), L"Ctrl+Q");
  EXPECT_EQ(Chosen(), -1);
  Click(Control(cmdClose0));
  EXPECT_EQ(settings_.hotkey, L"Ctrl+Q");
}

TEST_F(HotKeyDialogTest, ListTakesNoTyping) {
  Open(L"F9");
  Type(Control(cmbHotKey), L"F1");
  for (const int key : {int{'F'}, VK_DELETE, VK_BACK, VK_INSERT, VK_SPACE}) {
    SendMessageW(BoxOfList(Control(cmbHotKey)), WM_KEYDOWN, static_cast<WPARAM>(key), 0);
  }
  EXPECT_EQ(WindowText(Control(cmbHotKey)), L"F9");
  EXPECT_EQ(Chosen(), 11);
}

TEST_F(HotKeyDialogTest, ArrowsChooseInTheClosedList) {
  Open(L"F9");
  SendMessageW(BoxOfList(Control(cmbHotKey)), WM_KEYDOWN, VK_DOWN, 0);
  EXPECT_EQ(Chosen(), 12);
  EXPECT_EQ(WindowText(Control(cmbHotKey)), L"F10");
  EXPECT_EQ(settings_.hotkey, L"F9");
}

TEST_F(HotKeyDialogTest, OwnerTakesNoInputWhileItIsOpen) {
  Open(L"F9");
  EXPECT_FALSE(IsWindowEnabled(owner_));
  Click(Control(cmdClose1));
  EXPECT_TRUE(IsWindowEnabled(owner_));
}

TEST_F(HotKeyDialogTest, StandsInTheMiddleOfTheScreen) {
  Open(L"F9");
  RECT place{};
  GetWindowRect(dialog_.Handle(), &place);
  EXPECT_NEAR(place.left + place.right, GetSystemMetrics(SM_CXSCREEN), 1);
  EXPECT_NEAR(place.top + place.bottom, GetSystemMetrics(SM_CYSCREEN), 1);
}

}  // namespace
}  // namespace ui
