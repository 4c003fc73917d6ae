// The ancestors and children that an accessible report lists.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "AccessibleReportFixture.h"
#include "accessibility/AccessibleRows.h"

namespace MyAccessible {
namespace {

class AccessibleRowsTest : public AccessibleReportFixture {};

TEST_F(AccessibleRowsTest, RowsHoldEdgesBeyond32Bits) {
  group_.Own().place = {2147483647, 0, 2147483647, 1};
  EXPECT_NE(Report(list_, 0).find(L"(2147483647,0,4294967294,1)"), std::wstring::npos);
}

TEST_F(AccessibleRowsTest, AncestorsAreReadTwice) {
  settings_.parentChildren = 0;
  Report(list_, 0);
  EXPECT_EQ(std::ranges::count(window_.calls, "accLocation 0"), 2);
  EXPECT_EQ(std::ranges::count(list_.calls, "accParent"), 2);
}

TEST_F(AccessibleRowsTest, OnlyMembersOfTheAncestorsBelowTheLargestNumber) {
  // Parents that form a circle.
  window_.parent = &list_;
  const auto rows = [this] {
    const platform::ReadSession session = session_.Session();
    return AncestorRows(&list_, Self(), settings_, session);
  };
  settings_.parentChildrenMax = 10;
  EXPECT_EQ(std::ranges::count(rows(), L'\n'), 11);
  settings_.parentChildrenMax = 9999;
  EXPECT_EQ(std::ranges::count(rows(), L'\n'), 10'000);
  settings_.parentChildrenMax = INT32_MAX;
  session_.moveOnAfter = session_.yields + 20'000;
  const std::wstring left = rows();
  EXPECT_EQ(std::ranges::count(left, L'\n'), 20'001);
  EXPECT_TRUE(left.starts_with(L"・・・中断・・・\r\n"));
  settings_.parentChildrenMax = 0;
  EXPECT_EQ(rows(), L"");
}

TEST_F(AccessibleRowsTest, AncestorsAreListedUntilTheCaptureMovesOn) {
  window_.parent = &list_;
  settings_.parentChildren = 0;
  settings_.parentChildrenMax = 1000;
  session_.moveOnAfter = 2;
  list_.calls.clear();
  const std::wstring text = Report(list_, 0);
  const std::size_t first = text.find(L"Ancestors  : top → bottom\r\n" COLUMNS);
  ASSERT_NE(first, std::wstring::npos);
  EXPECT_TRUE(
      text.substr(first).starts_with(
          L"Ancestors  : top → bottom\r\n" COLUMNS L"・・・中断・・・\r\n"
          L"Children   : 3 max=1000\r\n"))
      << text;
  // No more than the two before it, although the listing is made twice.
  EXPECT_EQ(session_.yields, 2);
}

TEST_F(AccessibleRowsTest, ACaptureThatEndsLeavesACircleOfAncestors) {
  window_.parent = &list_;
  settings_.parentChildren = 0;
  settings_.parentChildrenMax = INT32_MAX;
  session_.onYield = [this] {
    session_.running = false;
    session_.target = nullptr;  // as when no capture runs
  };
  EXPECT_NE(Report(list_, 0).find(L"・・・中断・・・\r\nChildren   : "), std::wstring::npos);
  EXPECT_EQ(session_.yields, 1);
}

TEST_F(AccessibleRowsTest, OfAWindowThatWasLeftBeforeNothingIsListed) {
  session_.onYield = [] { FAIL() << "something was listed"; };
  const platform::ReadSession session = session_.Session();
  session_.GoElsewhere();
  EXPECT_EQ(AncestorRows(&list_, Self(), settings_, session), L"・・・中断・・・\r\n");
  EXPECT_EQ(ChildRows(&list_, Self(), settings_, session), L"・・・中断・・・");
}

TEST_F(AccessibleRowsTest, NamesInRowsAreCutButForTheLastColumn) {
  group_.Own().name = std::wstring(51, L'長');
  EXPECT_NE(
      Report(list_, 0).find(L" \"" + std::wstring(50, L'長') + L".......\"\t20:グループ化\t(5," +
                            L"15,205,115)\tChildCount=1\t\"" + std::wstring(51, L'長') + L"\"\r\n"),
      std::wstring::npos);
}

TEST_F(AccessibleRowsTest, AClaimedCountOfChildrenIsReported) {
  list_.claimedChildren = 2'000'000'000;
  list_.enumerates = true;
  const std::wstring text = Report(list_, 0);
  EXPECT_NE(text.find(L"Children   : 2000000000 max=10\r\n"), std::wstring::npos);
  EXPECT_TRUE(text.ends_with(L"\"橙\"\r\n"));
  list_.enumerates = false;
  EXPECT_TRUE(
      Report(list_, 0).ends_with(L" \"\"\t:\t(0,0,0,0)\tChildCount=0\t\"\"\r\n"
                                 L"-- 以下省略 -- 個数変更：[設定]→[MSAA] …Child最大取得個数\r\n"));
}

TEST_F(AccessibleRowsTest, AnotherTargetInterruptsTheChildren) {
  session_.moveOnAfter = 1;
  EXPECT_TRUE(Report(list_, 0).ends_with(L"ChildCount=0\t\"赤\"\r\n・・・中断・・・"));
}

}  // namespace
}  // namespace MyAccessible
