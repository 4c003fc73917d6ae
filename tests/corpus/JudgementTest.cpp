// That the judgement on a window is right: on windows of the test's own.
#include <windows.h>

#include <commctrl.h>

#include <gtest/gtest.h>

#include <string>

#include "ListFixture.h"
#include "Pointing.h"
#include "Verdict.h"
#include "bed/Needs.h"
#include "driver/GuiTest.h"
#include "platform/UniqueHandle.h"

namespace corpus {
namespace {

// Other than a label it is found by its own process.
constexpr wchar_t kPlain[] = L"CorpusPlain";
constexpr wchar_t kLiar[] = L"CorpusLiar";

// Says something else each time.
LRESULT CALLBACK LiarProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  static int times = 0;
  if (message != WM_GETTEXT) return DefWindowProcW(window, message, wParam, lParam);
  const std::wstring text = std::to_wstring(++times);
  text.copy(reinterpret_cast<wchar_t*>(lParam), text.size());
  reinterpret_cast<wchar_t*>(lParam)[text.size()] = L'\0';
  return static_cast<LRESULT>(text.size());
}

class JudgementTest : public gui::GuiTest {
 protected:
  static void Register(const wchar_t* name, WNDPROC procedure) {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = name;
    RegisterClassW(&windowClass);
  }

  static void SetUpTestSuite() {
    InitCommonControls();
    Register(kPlain, DefWindowProcW);
    Register(kLiar, LiarProcedure);
  }

  static platform::UniqueWindow Top(int left = 100, const wchar_t* className = kPlain) {
    return platform::UniqueWindow(CreateWindowExW(
        WS_EX_TOPMOST | WS_EX_NOACTIVATE, className, L"a window that holds this long text",
        WS_POPUP | WS_VISIBLE, left, 100, 200, 100, nullptr, nullptr, nullptr, nullptr));
  }
  HWND Inside(int left, int width, DWORD style = 0, const wchar_t* className = kPlain,
              const wchar_t* text = L"文字") const {
    return CreateWindowExW(0, className, text, WS_CHILD | WS_VISIBLE | style, left, 0, width, 100,
                           top_.Get(), nullptr, nullptr, nullptr);
  }
  HWND TopWindow() const { return top_.Get(); }

 private:
  platform::UniqueWindow top_ = Top();
};

TEST_F(JudgementTest, AWindowThatCanBePointedAtIsReadWhole) {
  const Verdict verdict = Judge(TopWindow());
  EXPECT_EQ(verdict.outcome, Outcome::kWhole) << verdict.missing;
  EXPECT_EQ(verdict.texts.caption, L"a window that holds this long text");
  EXPECT_EQ(Judge(Inside(150, 50, WS_DISABLED)).outcome, Outcome::kWhole);
}

TEST_F(JudgementTest, WhatItsPartsLeaveIsFound) {
  Inside(0, 198);
  const Pointed pointed = PointAt(TopWindow());
  ASSERT_TRUE(pointed.point);
  EXPECT_GE(pointed.point->at.x, 298);
}

TEST_F(JudgementTest, EachHindranceIsNamed) {
  HWND first = Inside(0, 200);
  EXPECT_EQ(Judge(TopWindow()).outcome, Outcome::kItsParts);
  HWND second = Inside(0, 200);
  SetWindowPos(second, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  EXPECT_EQ(Judge(first).outcome, Outcome::kCovered);
  const platform::UniqueWindow above = Top();
  EXPECT_EQ(Judge(second).outcome, Outcome::kCovered);
  EXPECT_EQ(Judge(TopWindow()).outcome, Outcome::kCovered);
  EXPECT_EQ(Judge(Inside(300, 50)).outcome, Outcome::kNoPlace);
  EXPECT_EQ(Judge(Top(-300).Get()).outcome, Outcome::kNoPlace);
}

TEST_F(JudgementTest, WithoutATextThereIsNothingToRead) {
  SetWindowTextW(TopWindow(), L"");
  EXPECT_EQ(Judge(TopWindow()).outcome, Outcome::kNoText);
}

TEST_F(JudgementTest, ATextThatIsReadDifferentlyIsUnread) {
  const platform::UniqueWindow liar = Top(400, kLiar);
  const Verdict verdict = Judge(liar.Get());
  EXPECT_EQ(verdict.outcome, Outcome::kUnread);
  EXPECT_NE(verdict.missing, "");
}

TEST_F(JudgementTest, AListThatIsPaintedHoldsNoTexts) {
  HWND list = Inside(0, 200, LBS_OWNERDRAWFIXED, L"ListBox", L"");
  EXPECT_EQ(Judge(list).outcome, Outcome::kNoText);
  SendMessageW(list, LB_ADDSTRING, 0, 0x1234);
  EXPECT_EQ(Judge(list).outcome, Outcome::kPainted);
}

TEST_F(JudgementTest, WhatIsReadOnlyOnRequestIsNamed) {
  HWND list = Inside(0, 200, LVS_REPORT, WC_LISTVIEWW, L"");
  LVCOLUMNW column{};
  SendMessageW(list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  const auto fill = [&](std::wstring text) {
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.pszText = text.data();
    SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
  };
  fill(L"短い");
  EXPECT_EQ(Judge(list).outcome, Outcome::kWhole);
  fill(std::wstring(300, L'長'));
  EXPECT_EQ(Judge(list).outcome, bed::Is64BitSystem() ? Outcome::kWhole : Outcome::kWholeByRequest);
}

}  // namespace
}  // namespace corpus
