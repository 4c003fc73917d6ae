// Readers on windows of the test's own process, which record the messages.

#include "extract/ControlText.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

#include "../ReadItems.h"
#include "extract/Win32API_Window.h"
#include "platform/UniqueHandle.h"

namespace extract {
namespace {

constexpr const wchar_t* kClass = L"VelmoraAskedWindow";

struct Answers {
  std::vector<WPARAM> bufferSizes;
  std::wstring text;
  bool fillsTheBuffer = false;  // leaves no zero character
  bool copiesNothing = false;   // and says so, but the buffer holds something
};

Answers answers;

LRESULT CALLBACK AskedProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_GETTEXT) return DefWindowProcW(hwnd, message, wParam, lParam);
  answers.bufferSizes.push_back(wParam);
  auto* const buffer = reinterpret_cast<wchar_t*>(lParam);
  if (answers.fillsTheBuffer) {
    std::fill_n(buffer, wParam, L'x');
    return static_cast<LRESULT>(wParam);
  }
  const std::wstring text = answers.text.substr(0, wParam - 1);
  text.copy(buffer, text.size());
  buffer[text.size()] = L'\0';
  return answers.copiesNothing ? 0 : static_cast<LRESULT>(text.size());
}

class ControlTextTest : public testing::Test {
 protected:
  ControlTextTest() {
    answers = {};
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = AskedProcedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = kClass;
    RegisterClassW(&windowClass);
  }
  static platform::UniqueWindow Window(const wchar_t* className, const wchar_t* text = L"",
                                       HWND parent = nullptr, DWORD style = 0) {
    return platform::UniqueWindow(
        CreateWindowExW(0, className, text, style | (parent != nullptr ? WS_CHILD : WS_POPUP), 0, 0,
                        50, 50, parent, nullptr, GetModuleHandleW(nullptr), nullptr));
  }
};

TEST_F(ControlTextTest, CaptionsHaveABufferOf9192Characters) {
  const auto window = Window(kClass);
  answers.text = L"a\nb\r\nc\rd";
  EXPECT_EQ(Win32API_Window::MyGetWindowText(window.Get()), L"a\r\nb\r\nc\rd");
  EXPECT_EQ(answers.bufferSizes, std::vector<WPARAM>{9192});
}

TEST_F(ControlTextTest, ALongCaptionIsCut) {
  const auto window = Window(kClass);
  answers.text.assign(20'000, L'長');
  EXPECT_EQ(Win32API_Window::MyGetWindowText(window.Get()).size(), 9191U);
}

TEST_F(ControlTextTest, ThePlaceholderForLineEndsBecomesALineEnd) {
  const auto window = Window(kClass);
  answers.text = L"a%!LF!%b";
  EXPECT_EQ(Win32API_Window::MyGetWindowText(window.Get()), L"a\r\nb");
}

std::wstring EditText(HWND hwnd, std::wstring& method) {
  return TextOf([&](platform::ItemSink& sink) { return MyGetEditItem(hwnd, sink); }, method);
}

std::wstring ChildText(HWND hwnd, std::wstring& method) {
  return TextOf([&](platform::ItemSink& sink) { return GetChildText(hwnd, sink); }, method);
}

// listed is what the listing of accessible children gives.
std::wstring OtherText(HWND hwnd, std::wstring_view listed, std::wstring& method) {
  const auto listing = [listed](platform::ItemSink& children) { children.Text(listed); };
  return TextOf([&](platform::ItemSink& sink) { return GetOther(hwnd, listing, {}, sink); },
                method);
}

TEST_F(ControlTextTest, TextsHaveABufferOf4096Characters) {
  const auto window = Window(kClass);
  answers.text = L"文字";
  std::wstring method;
  EXPECT_EQ(EditText(window.Get(), method), L"文字");
  EXPECT_EQ(method, L"WM_GETTEXT");
  EXPECT_EQ(answers.bufferSizes, std::vector<WPARAM>{4096});
}

TEST_F(ControlTextTest, WithoutAZeroCharacterThereIsNoText) {
  const auto window = Window(kClass);
  answers.fillsTheBuffer = true;
  std::wstring method = L"(before)";
  EXPECT_EQ(EditText(window.Get(), method), L"");
  EXPECT_EQ(method, L"(before)");
}

TEST_F(ControlTextTest, NoTextLeavesTheMethod) {
  const auto window = Window(kClass);
  std::wstring method = L"(before)";
  EXPECT_EQ(EditText(window.Get(), method), L"");
  EXPECT_EQ(EditText(nullptr, method), L"");
  EXPECT_EQ(method, L"(before)");
}

TEST_F(ControlTextTest, WhereNothingWasCopiedThereIsNoText) {
  const auto window = Window(kClass);
  answers.text = L"\x98 left over";
  answers.copiesNothing = true;
  EXPECT_EQ(Win32API_Window::WindowTextByMessage(window.Get()), L"");
  EXPECT_EQ(Win32API_Window::WholeWindowText(window.Get()), L"");
}

TEST_F(ControlTextTest, ClassNamesAreReadUpTo127Characters) {
  const std::wstring longName(200, L'C');
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = DefWindowProcW;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.lpszClassName = longName.c_str();
  RegisterClassW(&windowClass);
  const auto window = Window(longName.c_str());
  EXPECT_EQ(Win32API_Window::MyGetClassName(window.Get()), std::wstring(127, L'C'));
  EXPECT_EQ(Win32API_Window::MyGetClassName(nullptr), L"");
}

TEST_F(ControlTextTest, TheTopParentIsTheLastOfTheChain) {
  const auto owner = Window(L"STATIC");
  const auto top = platform::UniqueWindow(CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 9, 9,
                                                          owner.Get(), nullptr, nullptr, nullptr));
  const auto child = Window(L"STATIC", L"", top.Get());
  const auto grandchild = Window(L"STATIC", L"", child.Get());
  EXPECT_EQ(Win32API_Window::GetTopParent(grandchild.Get()), owner.Get());
  EXPECT_EQ(Win32API_Window::GetTopParent(owner.Get()), owner.Get());
  EXPECT_EQ(Win32API_Window::GetTopParent(nullptr), nullptr);
}

TEST_F(ControlTextTest, TopmostGoesOnAndOff) {
  const auto window = Window(L"STATIC");
  const auto isTopmost = [&] {
    return (GetWindowLongW(window.Get(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
  };
  EXPECT_TRUE(Win32API_Window::SetTopMost(window.Get()));
  EXPECT_TRUE(isTopmost());
  EXPECT_TRUE(Win32API_Window::SetNoTopMost(window.Get()));
  EXPECT_FALSE(isTopmost());
  EXPECT_FALSE(Win32API_Window::SetTopMost(nullptr));
}

TEST_F(ControlTextTest, ChildrensTextsFollowTheWindowsOwn) {
  const auto window = Window(L"STATIC", L"W");
  const auto first = Window(L"STATIC", L"A", window.Get());
  const auto empty = Window(L"STATIC", L"", window.Get());
  const auto second = Window(L"STATIC", L"B", window.Get());
  const auto inside = Window(L"STATIC", L"deeper", first.Get());
  std::wstring method;
  EXPECT_EQ(ChildText(window.Get(), method), L"WA\r\nB\r\n");
  EXPECT_EQ(method, L"Accessible");

  SetWindowTextW(window.Get(), L"");
  EXPECT_EQ(ChildText(window.Get(), method), L"A\r\nB\r\n");
  // In Z order, not in the order of creation.
  SetWindowPos(second.Get(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  EXPECT_EQ(ChildText(window.Get(), method), L"B\r\nA\r\n");
}

TEST_F(ControlTextTest, OtherWindowsAreListedByTheirAccessibleChildren) {
  const auto window = Window(L"STATIC", L"W");
  std::wstring method;
  EXPECT_EQ(OtherText(window.Get(), L"一\r\n二\r\n", method), L"一\r\n二\r\n");
  EXPECT_EQ(method, L"Accessible");
  // Also the mark of a failed listing: the user should see it.
  EXPECT_EQ(OtherText(window.Get(), L"% 取得エラー！ %", method), L"% 取得エラー！ %");
}

TEST_F(ControlTextTest, WithoutAccessibleChildrenTheChildWindowsAreListed) {
  const auto window = Window(L"STATIC", L"W");
  std::wstring method;
  EXPECT_EQ(OtherText(window.Get(), L"", method), L"W");
}

}  // namespace
}  // namespace extract
