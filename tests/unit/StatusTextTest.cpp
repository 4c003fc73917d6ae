// The status text of real windows: those of the target's program, of the one in front, and of the
// tabs in that one.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <deque>
#include <string>

#include "platform/UniqueHandle.h"
#include "report/StatusText.h"

namespace report {
namespace {

constexpr wchar_t kPlain[] = L"StatusTextTest";
constexpr wchar_t kTab[] = L"TabWindowClass";

class StatusTextTest : public testing::Test {
 protected:
  StatusTextTest() {
    InitCommonControls();
    for (const wchar_t* const name : {kPlain, kTab}) {
      WNDCLASSW windowClass{};
      windowClass.lpfnWndProc = DefWindowProcW;
      windowClass.hInstance = GetModuleHandleW(nullptr);
      windowClass.lpszClassName = name;
      RegisterClassW(&windowClass);
    }
    targetsProgram_ = Add(kPlain, L"的の窓", nullptr);
    inFront_ = Add(kPlain, L"前の窓", nullptr);
    target_ = Add(kPlain, L"", Add(kPlain, L"", targetsProgram_));
    // A thread that has not looked for messages for some seconds counts as hung.
    MSG message;
    PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
    SetForegroundWindow(inFront_);
    EXPECT_EQ(GetForegroundWindow(), inFront_);
  }

  HWND Add(const wchar_t* className, const wchar_t* text, HWND parent) {
    const DWORD style = parent != nullptr ? WS_CHILD : WS_OVERLAPPEDWINDOW;
    windows_.emplace_back(CreateWindowExW(0, className, text, style | WS_VISIBLE, 0, 0, 200, 100,
                                          parent, nullptr, GetModuleHandleW(nullptr), nullptr));
    return windows_.back().Get();
  }
  HWND AddBar(HWND parent, const wchar_t* text) { return Add(STATUSCLASSNAMEW, text, parent); }

  std::wstring Find(const wchar_t* className = kPlain) const {
    return FindStatusText({target_, className, L"頁", {}});
  }

  std::deque<platform::UniqueWindow> windows_;
  HWND targetsProgram_ = nullptr;
  HWND inFront_ = nullptr;
  HWND target_ = nullptr;  // deep in the target's program
};

TEST_F(StatusTextTest, TheBarMayLieDeepInTheTargetsProgram) {
  AddBar(inFront_, L"前");
  AddBar(Add(kPlain, L"", targetsProgram_), L"的");
  EXPECT_EQ(Find(), L"的");
}

TEST_F(StatusTextTest, UnderAMenuTheSearchStartsAtTheForegroundWindow) {
  AddBar(inFront_, L"前");
  AddBar(targetsProgram_, L"的");
  EXPECT_EQ(Find(L"#32768"), L"前");
}

TEST_F(StatusTextTest, WithoutAnyBarThereIsNoText) {
  EXPECT_EQ(Find(), L"");
  EXPECT_EQ(FindStatusText({}), L"");
}

TEST_F(StatusTextTest, OfTwoBarsNoneIsRead) {
  AddBar(targetsProgram_, L"一");
  AddBar(Add(kPlain, L"", targetsProgram_), L"二");
  EXPECT_EQ(Find(), L"");
  AddBar(Add(kPlain, L"", inFront_), L"前");
  EXPECT_EQ(Find(), L"前");
}

TEST_F(StatusTextTest, WithTwoBarsInFrontTheTabWithTheTargetsTitleCounts) {
  AddBar(targetsProgram_, L"一");
  AddBar(targetsProgram_, L"二");
  AddBar(Add(kTab, L"別の頁", inFront_), L"別");
  const HWND tab = Add(kTab, L"頁", Add(kPlain, L"", inFront_));
  AddBar(Add(kPlain, L"", tab), L"この頁");
  EXPECT_EQ(Find(), L"この頁");
  // Two bars in the tab count as none.
  AddBar(tab, L"もう一つ");
  EXPECT_EQ(Find(), L"");
}

}  // namespace
}  // namespace report
