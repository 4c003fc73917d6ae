// Windows that give random answers to requests for their texts.
#include <windows.h>

#include <gtest/gtest.h>
#include <oleacc.h>

#include <algorithm>
#include <cwchar>
#include <string>
#include <vector>

#include "../ReadItems.h"
#include "Cases.h"
#include "extract/ControlText.h"
#include "extract/Win32API_Window.h"
#include "report/WindowInformation.h"

namespace hostile {
namespace {

constexpr int kCases = 2000;
constexpr WPARAM kAskedByUs = 4096;
constexpr wchar_t kClass[] = L"HostileTooltip";

// Answers as the current case says; between cases like any window.
Random* answering = nullptr;

LRESULT CALLBACK HostileProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (answering == nullptr) return DefWindowProcW(window, message, wParam, lParam);
  switch (message) {
    case WM_GETTEXT: {
      // As much as fits, with or without a terminating zero.
      const std::wstring text = answering->Text(6000);
      const std::size_t count =
          std::min<std::size_t>(wParam, text.size() + (answering->Chance(80) ? 1 : 0));
      std::wmemcpy(reinterpret_cast<wchar_t*>(lParam), text.c_str(), count);
      if (wParam == kAskedByUs) return answering->Number();
      // In Wine the system's accessible object trusts the length, and reads beyond its text.
      return static_cast<LRESULT>(wcsnlen(text.c_str(), wParam - 1));
    }
    case WM_GETTEXTLENGTH:
      return answering->Number();
    case WM_GETOBJECT:
      return 0;
    default:
      return DefWindowProcW(window, message, wParam, lParam);
  }
}

class HostileWindowsTest : public testing::Test {
 protected:
  HostileWindowsTest() {
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = HostileProcedure;
    windowClass.lpszClassName = kClass;
    RegisterClassW(&windowClass);
    window_ = CreateWindowExW(WS_EX_NOACTIVATE, kClass, L"", WS_POPUP | WS_VISIBLE, 900, 900, 20,
                              20, nullptr, nullptr, nullptr, nullptr);
    for (int i = 0; i < 3; ++i) {
      CreateWindowExW(0, kClass, L"", WS_CHILD | WS_VISIBLE, 0, 0, 9, 9, window_, nullptr, nullptr,
                      nullptr);
    }
  }
  ~HostileWindowsTest() override {
    answering = nullptr;
    DestroyWindow(window_);
    UnregisterClassW(kClass, nullptr);
  }

  static void ForEachAnswer(const std::function<void(Random&)>& check) {
    ForEachCase(kCases, [&](Random& random) {
      answering = &random;
      check(random);
      answering = nullptr;
    });
  }

  HWND window_ = nullptr;
};

TEST_F(HostileWindowsTest, TextsOfControls) {
  ForEachAnswer([this](Random&) {
    std::wstring method = L"(untouched)";
    const std::wstring text = TextOf(
        [this](platform::ItemSink& sink) { return extract::MyGetEditItem(window_, sink); }, method);
    EXPECT_LT(text.size(), 4097U);
    EXPECT_EQ(text.find(L'\0'), std::wstring::npos);
    EXPECT_EQ(method, text.empty() ? L"(untouched)" : L"WM_GETTEXT");
    EXPECT_EQ(extract::MyGetControlText(window_).find(L'\0'), std::wstring::npos);
  });
}

TEST_F(HostileWindowsTest, TextsOfChildren) {
  ForEachAnswer([this](Random&) {
    std::wstring method;
    const std::wstring text = TextOf(
        [this](platform::ItemSink& sink) { return extract::GetChildText(window_, sink); }, method);
    EXPECT_EQ(method, L"Accessible");
    EXPECT_LT(text.size(), 4U * 4100);
    EXPECT_EQ(text.find(L'\0'), std::wstring::npos);
  });
}

TEST_F(HostileWindowsTest, TextsOfToolTips) {
  ForEachAnswer([](Random&) {
    const std::wstring text = extract::GetTooltipText();
    EXPECT_LT(text.size(), 4097U);
    EXPECT_EQ(text.find(L'\0'), std::wstring::npos);
  });
}

TEST_F(HostileWindowsTest, CaptionsAndFacts) {
  ForEachAnswer([this](Random&) {
    const report::WindowFacts facts = report::ReadWindowFacts(window_);
    EXPECT_EQ(facts.className, kClass);
    EXPECT_LT(facts.title.size(), 2U * 9192);
    EXPECT_EQ(facts.title.find(L'\0'), std::wstring::npos);
  });
}

}  // namespace
}  // namespace hostile
