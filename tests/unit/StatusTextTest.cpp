#include "capture/StatusText.h"

#include <gtest/gtest.h>

#include <map>

#include "FakeCapture.h"

namespace capture {
namespace {

// Window 1 is the target in top-level window 2; window 9 is in front.
class FakeWindows : public StatusWindows {
 public:
  HWND TopParent(HWND hwnd) override { return hwnd == WindowNumber(1) ? WindowNumber(2) : hwnd; }
  HWND Foreground() override { return WindowNumber(9); }
  std::vector<HWND> Descendants(HWND root, std::wstring_view className) override {
    return className == L"msctls_statusbar32" ? bars[root] : tabs[root];
  }
  std::wstring Title(HWND hwnd) override { return titles[hwnd]; }
  std::wstring Text(HWND hwnd) override {
    return L"bar " + std::to_wstring(reinterpret_cast<INT_PTR>(hwnd));
  }

  std::map<HWND, std::vector<HWND>> bars;
  std::map<HWND, std::vector<HWND>> tabs;
  std::map<HWND, std::wstring> titles;
};

class StatusTextTest : public testing::Test {
 protected:
  std::wstring Find(std::wstring_view className = L"Edit", std::wstring_view title = L"page") {
    return FindStatusText(windows_, WindowNumber(1), className, title);
  }
  static std::vector<HWND> Numbers(std::initializer_list<int> numbers) {
    std::vector<HWND> windows;
    for (const int number : numbers) windows.push_back(WindowNumber(number));
    return windows;
  }

  FakeWindows windows_;
};

TEST_F(StatusTextTest, IsTheOneBarUnderTheTopLevelWindow) {
  windows_.bars[WindowNumber(2)] = Numbers({30});
  windows_.bars[WindowNumber(9)] = Numbers({40});
  EXPECT_EQ(Find(), L"bar 30");
}

TEST_F(StatusTextTest, ElseTheOneUnderTheForegroundWindow) {
  windows_.bars[WindowNumber(9)] = Numbers({40});
  EXPECT_EQ(Find(), L"bar 40");
  windows_.bars[WindowNumber(2)] = Numbers({30, 31});
  EXPECT_EQ(Find(), L"bar 40");
}

TEST_F(StatusTextTest, ElseTheOneInTheTabOfTheSameTitle) {
  windows_.bars[WindowNumber(9)] = Numbers({40, 41});
  windows_.tabs[WindowNumber(9)] = Numbers({50, 51, 52});
  windows_.titles[WindowNumber(50)] = L"other";
  windows_.titles[WindowNumber(51)] = L"page";
  windows_.bars[WindowNumber(50)] = Numbers({60});
  windows_.bars[WindowNumber(51)] = Numbers({61});
  EXPECT_EQ(Find(), L"bar 61");
  EXPECT_EQ(Find(L"Edit", L"none"), L"");
}

TEST_F(StatusTextTest, ElseThereIsNone) {
  EXPECT_EQ(Find(), L"");
  windows_.tabs[WindowNumber(9)] = Numbers({50});
  windows_.titles[WindowNumber(50)] = L"page";
  windows_.bars[WindowNumber(50)] = Numbers({60, 61});
  EXPECT_EQ(Find(), L"");
}

TEST_F(StatusTextTest, UnderAMenuTheSearchStartsAtTheForegroundWindow) {
  windows_.bars[WindowNumber(2)] = Numbers({30});
  windows_.bars[WindowNumber(9)] = Numbers({40});
  EXPECT_EQ(Find(L"#32768"), L"bar 40");
}

}  // namespace
}  // namespace capture
