// Which of several tool-tip windows is read.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "extract/ControlText.h"
#include "platform/UniqueHandle.h"

namespace extract {
namespace {

// Names that only contain the fragments, in another case.
constexpr wchar_t kTip[] = L"OurToolTipWindow";
constexpr wchar_t kBubble[] = L"OurVBBubbleRT6Window";

class TooltipWindowsTest : public testing::Test {
 protected:
  TooltipWindowsTest() {
    for (const wchar_t* const name : {kTip, kBubble}) {
      WNDCLASSW windowClass{};
      windowClass.lpfnWndProc = DefWindowProcW;
      windowClass.hInstance = GetModuleHandleW(nullptr);
      windowClass.lpszClassName = name;
      RegisterClassW(&windowClass);
    }
  }

  static platform::UniqueWindow Shown(const wchar_t* className, const wchar_t* text,
                                      HWND parent = nullptr) {
    return platform::UniqueWindow(CreateWindowExW(
        WS_EX_NOACTIVATE, className, text, (parent != nullptr ? WS_CHILD : WS_POPUP) | WS_VISIBLE,
        0, 0, 40, 20, parent, nullptr, GetModuleHandleW(nullptr), nullptr));
  }
  static void Hide(const platform::UniqueWindow& window) { ShowWindow(window.Get(), SW_HIDE); }
};

TEST_F(TooltipWindowsTest, WithoutAnyThereIsNoText) {
  const auto plain = Shown(L"STATIC", L"tooltip");
  const auto inside = Shown(kTip, L"中の説明", plain.Get());
  EXPECT_EQ(GethWndTooltips(), nullptr);
  EXPECT_EQ(GetTooltipText(), L"");
}

TEST_F(TooltipWindowsTest, TipsComeBeforeBubbles) {
  const auto earlier = Shown(kBubble, L"吹き出し");
  const auto tip = Shown(kTip, L"説明");
  const auto later = Shown(kBubble, L"別の吹き出し");
  EXPECT_EQ(GethWndTooltips(), tip.Get());
  EXPECT_EQ(GetTooltipText(), L"説明");
  Hide(tip);
  EXPECT_EQ(GetTooltipText(), earlier.Get() < later.Get() ? L"吹き出し" : L"別の吹き出し");
}

TEST_F(TooltipWindowsTest, OfSeveralTheOneWithTheSmallestHandleCounts) {
  auto smaller = Shown(kTip, L"甲");
  auto larger = Shown(kTip, L"乙");
  if (larger.Get() < smaller.Get()) std::swap(smaller, larger);
  // In either Z order.
  for (HWND above : {smaller.Get(), larger.Get()}) {
    SetWindowPos(above, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    EXPECT_EQ(GethWndTooltips(), smaller.Get());
  }
}

TEST_F(TooltipWindowsTest, HiddenOnesDoNotCount) {
  auto smaller = Shown(kTip, L"甲");
  auto larger = Shown(kTip, L"乙");
  if (larger.Get() < smaller.Get()) std::swap(smaller, larger);
  Hide(smaller);
  EXPECT_EQ(GethWndTooltips(), larger.Get());
  Hide(larger);
  EXPECT_EQ(GethWndTooltips(), nullptr);
}

}  // namespace
}  // namespace extract
