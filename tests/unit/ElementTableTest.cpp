#include "report/ElementTable.h"

#include <gtest/gtest.h>

namespace report {
namespace {

using MyInternetexplore::ElementFacts;

TEST(ElementTableTest, ColumnsAreFilledWithBlanks) {
  EXPECT_EQ(ElementRow({L"INPUT", L"text", L"q", L"値", L"文字"}, 50),
            L"INPUT   text        q           値           文字\r\n");
  EXPECT_EQ(ElementRow({}, 50), std::wstring(8 + 12 + 12 + 12, L' ') + L"\r\n");
}

TEST(ElementTableTest, AFullColumnIsFollowedByOneBlank) {
  EXPECT_EQ(ElementRow({L"TEXTAREA", L"123456789012", L"1234567890123", L"12345678901", L"t"}, 50),
            L"TEXTAREA 123456789012 1234567890123 12345678901 t\r\n");
  EXPECT_EQ(ElementRow({L"1234567", {}, {}, {}, {}}, 50).substr(0, 9), L"1234567  ");
}

struct CutCase {
  std::size_t characters;
  std::int32_t allowed;
  const wchar_t* shown;
};

class ElementTextTest : public testing::TestWithParam<CutCase> {};

TEST_P(ElementTextTest, IsCutWhenItIsMoreThanTwoTooLong) {
  const auto [characters, allowed, shown] = GetParam();
  const std::wstring whole = std::wstring(L"123456789").substr(0, characters);
  EXPECT_EQ(ElementRow({{}, {}, {}, {}, whole}, allowed).substr(44), std::wstring(shown) + L"\r\n");
  // What is read is enough to know that.
  const std::wstring read = whole.substr(0, CharactersNeeded(allowed));
  EXPECT_EQ(ElementRow({{}, {}, {}, {}, read}, allowed).substr(44), std::wstring(shown) + L"\r\n");
}

INSTANTIATE_TEST_SUITE_P(Lengths, ElementTextTest,
                         testing::Values(CutCase{4, 4, L"1234"}, CutCase{5, 4, L"12345"},
                                         CutCase{6, 4, L"123456"}, CutCase{7, 4, L"1234..."},
                                         CutCase{9, 4, L"1234..."}, CutCase{2, 0, L"12"},
                                         CutCase{3, 0, L"..."}, CutCase{3, -5, L"..."},
                                         CutCase{9, 0x7FFF'FFFF, L"123456789"}));

TEST(ElementTableTest, TheAddressStandsAboveTheTable) {
  EXPECT_EQ(ElementReport({L"http://host/",
                           L"a/b",
                           {{L"HTML", {}, {}, {}, L"全て"}, {L"P", {}, L"id", {}, L"段落"}}},
                          50),
            L"URL     http://host/\r\n"
            L"\r\n"
            L"Tag     Type        Id          value       表示文字\r\n"
            L"------------------------------------------\r\n"
            L"HTML                                        全て\r\n"
            L"P                   id                      段落\r\n");
}

TEST(ElementTableTest, APageWithoutAnElementHasNoRows) {
  EXPECT_EQ(ElementReport({}, 50),
            L"URL     \r\n"
            L"\r\n"
            L"Tag     Type        Id          value       表示文字\r\n"
            L"------------------------------------------\r\n");
}

TEST(ElementTableTest, AnInterruptionStandsWhereRowsAreMissing) {
  const std::wstring text = ElementReport({{}, {}, {{L"P", {}, {}, {}, L"段落"}}, true}, 50);
  EXPECT_TRUE(
      text.ends_with(L"----\r\n・・・中断・・・\r\nP" + std::wstring(43, L' ') + L"段落\r\n"))
      << testing::PrintToString(text);
}

}  // namespace
}  // namespace report
