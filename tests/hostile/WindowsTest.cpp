// Windows that answer anything when they are asked for their texts.
#include <windows.h>

#include <gtest/gtest.h>
#include <oleacc.h>

#include <algorithm>
#include <cwchar>
#include <string>
#include <vector>

#include "Cases.h"
#include "capture/StatusText.h"
#include "capture/WindowInformation.h"
#include "extract/ControlText.h"
#include "extract/Win32API_Window.h"

namespace hostile {
namespace {

constexpr int kCases = 2000;
constexpr WPARAM kAskedByUs = 4096;
constexpr wchar_t kClass[] = L"HostileTooltip";

// Answers as the case at hand has it; at rest as any window.
Random* answering = nullptr;

LRESULT CALLBACK HostileProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (answering == nullptr) return DefWindowProcW(window, message, wParam, lParam);
  switch (message) {
    case WM_GETTEXT: {
      // As much as there is room for, with or without an end.
      const std::wstring text = answering->Text(6000);
      const std::size_t count =
          std::min<std::size_t>(wParam, text.size() + (answering->Chance(80) ? 1 : 0));
      std::wmemcpy(reinterpret_cast<wchar_t*>(lParam), text.c_str(), count);
      if (wParam == kAskedByUs) return answering->Number();
      // The system's own accessible object believes the length in Wine, and reads behind its text.
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
    const std::wstring text = extract::MyGetEditItem(window_, method);
    EXPECT_LT(text.size(), 4097U);
    EXPECT_EQ(text.find(L'\0'), std::wstring::npos);
    EXPECT_EQ(method, text.empty() ? L"(untouched)" : L"WM_GETTEXT");
    EXPECT_EQ(extract::MyGetControlText(window_).find(L'\0'), std::wstring::npos);
  });
}

TEST_F(HostileWindowsTest, TextsOfChildren) {
  ForEachAnswer([this](Random&) {
    std::wstring method;
    const std::wstring text = extract::GetChildText(window_, method);
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
    const capture::WindowFacts facts = capture::ReadWindowFacts(window_);
    EXPECT_EQ(facts.className, kClass);
    EXPECT_LT(facts.title.size(), 2U * 9192);
    EXPECT_EQ(facts.title.find(L'\0'), std::wstring::npos);
  });
}

// Windows around a status bar in no order at all.
class HostileStatusWindows : public capture::StatusWindows {
 public:
  explicit HostileStatusWindows(Random& random) : random_(random) {}

  HWND TopParent(HWND) override { return AnyWindow(); }
  HWND Foreground() override { return AnyWindow(); }
  std::vector<HWND> Descendants(HWND root, std::wstring_view) override {
    EXPECT_NE(root, nullptr);
    std::vector<HWND> found;
    for (int i = random_.Below(4); i > 0; --i) found.push_back(AnyWindow());
    return found;
  }
  std::wstring Title(HWND) override { return random_.Text(3); }
  std::wstring Text(HWND hwnd) override {
    EXPECT_NE(hwnd, nullptr);
    return given = random_.Text(300);
  }

  std::wstring given;

 private:
  HWND AnyWindow() { return reinterpret_cast<HWND>(UINT_PTR{random_.Bits() % 4}); }

  Random& random_;
};

TEST_F(HostileWindowsTest, StatusBars) {
  ForEachAnswer([](Random& random) {
    HostileStatusWindows windows(random);
    const std::wstring className = random.Chance(20) ? L"#32768" : random.Text(20);
    EXPECT_EQ(capture::FindStatusText(windows, nullptr, className, random.Text(3)), windows.given);
  });
}

}  // namespace
}  // namespace hostile
