#include "extract/WindowAtPoint.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/UniqueHandle.h"

namespace extract {
namespace {

HWND Number(int number) { return reinterpret_cast<HWND>(static_cast<INT_PTR>(number)); }

constexpr RECT kFrame = {10, 10, 110, 110};

WindowThere Box(int number, RECT place = kFrame) { return {Number(number), place, true, true}; }
WindowThere Plain(int number, RECT place, bool enabled = true) {
  return {Number(number), place, enabled, false};
}

TEST(FramedWindowTest, IsTheSmallestThatIsNoGroupBox) {
  const std::vector<WindowThere> siblings{Box(1), Plain(2, {20, 20, 100, 100}),
                                          Plain(3, {30, 30, 60, 60}), Box(4, {31, 31, 40, 40}),
                                          Plain(5, {25, 25, 80, 80}, false)};
  EXPECT_EQ(FramedWindow(kFrame, siblings), Number(3));
}

TEST(FramedWindowTest, OfEquallySmallOnesTheTopmost) {
  const std::vector<WindowThere> siblings{Box(1), Plain(2, {20, 20, 40, 40}),
                                          Plain(3, {30, 30, 50, 50})};
  EXPECT_EQ(FramedWindow(kFrame, siblings), Number(2));
}

TEST(FramedWindowTest, MayBeDisabledAndMayReachBeyondTheFrame) {
  const std::vector<WindowThere> siblings{Box(1), Plain(2, {50, 50, 300, 60}, false)};
  EXPECT_EQ(FramedWindow(kFrame, siblings), Number(2));
}

// A tab control behind the whole page frames the group box, not the other way round.
TEST(FramedWindowTest, IsNotBehindTheWholeFrame) {
  const std::vector<WindowThere> siblings{Box(1), Plain(2, {0, 0, 500, 500}), Plain(3, kFrame)};
  EXPECT_EQ(FramedWindow(kFrame, siblings), nullptr);
  EXPECT_EQ(FramedWindow(kFrame, {}), nullptr);
}

TEST(DisabledChildTest, IsTheTopmostChildWhenThatIsDisabled) {
  EXPECT_EQ(DisabledChild({}), nullptr);
  const std::vector<WindowThere> enabledAbove{Plain(1, kFrame), Plain(2, kFrame, false)};
  EXPECT_EQ(DisabledChild(enabledAbove), nullptr);
  const std::vector<WindowThere> disabledAbove{Plain(1, kFrame, false), Plain(2, kFrame)};
  EXPECT_EQ(DisabledChild(disabledAbove), Number(1));
}

TEST(DisabledChildTest, AGroupBoxGivesWayToWhatItFrames) {
  std::vector<WindowThere> children{Box(1), Plain(2, {20, 20, 40, 40}, false)};
  children[0].enabled = false;
  EXPECT_EQ(DisabledChild(children), Number(2));
  children.pop_back();
  EXPECT_EQ(DisabledChild(children), Number(1));
}

TEST(ChildMeantTest, IsTheTopmostEnabledOrNot) {
  EXPECT_EQ(ChildMeant({}), nullptr);
  const std::vector<WindowThere> children{Plain(1, kFrame, false), Plain(2, {20, 20, 30, 30})};
  EXPECT_EQ(ChildMeant(children), Number(1));
}

// Real windows, as a dialog has them.
class WindowMeantTest : public testing::Test {
 protected:
  WindowMeantTest() { dialog_ = Make(L"#32770", WS_POPUP | WS_VISIBLE, nullptr, {0, 0, 400, 300}); }

  static HWND Make(const wchar_t* className, DWORD style, HWND parent, RECT at) {
    return CreateWindowExW(0, className, L"", style, at.left, at.top, at.right - at.left,
                           at.bottom - at.top, parent, nullptr, nullptr, nullptr);
  }
  HWND Child(const wchar_t* className, DWORD style, RECT at, HWND parent = nullptr) const {
    return Make(className, WS_CHILD | WS_VISIBLE | style, parent == nullptr ? dialog_ : parent, at);
  }
  ~WindowMeantTest() override { DestroyWindow(dialog_); }

  HWND dialog_ = nullptr;
};

TEST_F(WindowMeantTest, MostlyTheGivenOne) {
  const HWND button = Child(L"BUTTON", BS_PUSHBUTTON, {20, 20, 80, 40});
  Child(L"BUTTON", BS_PUSHBUTTON, {30, 25, 50, 35});
  EXPECT_EQ(WindowMeant(button, {25, 30}), button);
  EXPECT_EQ(WindowMeant(dialog_, {300, 200}), dialog_);
  EXPECT_EQ(WindowMeant(nullptr, {30, 30}), nullptr);
  EXPECT_EQ(WindowMeant(GetDesktopWindow(), {30, 30}), GetDesktopWindow());
}

TEST_F(WindowMeantTest, WhatAGroupBoxAboveItFrames) {
  const HWND box = Child(L"BUTTON", BS_GROUPBOX, {10, 10, 200, 200});
  const HWND list = Child(L"LISTBOX", 0, {20, 40, 180, 180});
  Child(L"EDIT", WS_DISABLED, {500, 500, 600, 600});
  EXPECT_EQ(WindowMeant(box, {100, 100}), list);
  EXPECT_EQ(WindowMeant(box, {15, 15}), box);
  ShowWindow(list, SW_HIDE);
  EXPECT_EQ(WindowMeant(box, {100, 100}), box);
}

TEST_F(WindowMeantTest, TheInnermostWindowInTheFrame) {
  const HWND box = Child(L"BUTTON", BS_GROUPBOX, {10, 10, 200, 200});
  const HWND panel = Child(L"STATIC", 0, {20, 40, 180, 180});
  const HWND inner = Child(L"EDIT", 0, {10, 10, 100, 30}, panel);
  EXPECT_EQ(WindowMeant(box, {50, 60}), inner);
  EXPECT_EQ(WindowMeant(box, {170, 170}), panel);
}

TEST_F(WindowMeantTest, ADisabledChild) {
  const HWND edit = Child(L"EDIT", WS_DISABLED, {20, 20, 80, 40});
  EXPECT_EQ(WindowMeant(dialog_, {30, 30}), edit);
  EXPECT_EQ(WindowMeant(dialog_, {90, 30}), dialog_);
  ShowWindow(edit, SW_HIDE);
  EXPECT_EQ(WindowMeant(dialog_, {30, 30}), dialog_);
}

TEST_F(WindowMeantTest, TheInnermostOfADisabledChild) {
  const HWND panel = Child(L"STATIC", WS_DISABLED, {20, 20, 200, 200});
  const HWND edit = Child(L"EDIT", 0, {10, 10, 100, 30}, panel);
  EXPECT_EQ(WindowMeant(dialog_, {40, 40}), edit);
  EXPECT_EQ(WindowMeant(dialog_, {190, 190}), panel);
}

TEST_F(WindowMeantTest, ADisabledChildInAGroupBoxOrBelowIt) {
  const HWND box = Child(L"BUTTON", BS_GROUPBOX, {10, 10, 200, 200});
  const HWND below = Child(L"EDIT", WS_DISABLED, {20, 40, 180, 60});
  const HWND within = Child(L"EDIT", WS_DISABLED, {10, 100, 100, 120}, box);
  EXPECT_EQ(WindowMeant(box, {100, 50}), below);
  EXPECT_EQ(WindowMeant(box, {50, 120}), within);
}

// A check box has the same style bits but for its kind, and other classes use them otherwise.
TEST_F(WindowMeantTest, OnlyAGroupBoxIsAFrame) {
  const HWND checkBox = Child(L"BUTTON", BS_AUTOCHECKBOX, {10, 10, 200, 200});
  const HWND label = Child(L"STATIC", SS_BLACKRECT + 3, {10, 10, 200, 200});
  Child(L"LISTBOX", 0, {20, 40, 180, 180});
  EXPECT_EQ(WindowMeant(checkBox, {100, 100}), checkBox);
  EXPECT_EQ(WindowMeant(label, {100, 100}), label);
}

TEST_F(WindowMeantTest, AGroupBoxInAClassOfItsOwn) {
  WNDCLASSEXW button{};
  button.cbSize = sizeof button;
  GetClassInfoExW(nullptr, L"BUTTON", &button);
  button.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
  button.hInstance = GetModuleHandleW(nullptr);
  button.lpszClassName = L"Forms10.BUTTON.app";
  RegisterClassExW(&button);
  const HWND box = Child(button.lpszClassName, BS_GROUPBOX, {10, 10, 200, 200});
  const HWND list = Child(L"LISTBOX", 0, {20, 40, 180, 180});
  EXPECT_EQ(WindowMeant(box, {100, 100}), list);
}

}  // namespace
}  // namespace extract
