#include "extract/TextCount.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <new>
#include <random>

#include "platform/ErrorReport.h"
#include "platform/TextCodec.h"

namespace extract {
namespace {

TEST(FindStrCntTest, CountsWithoutOverlaps) {
  EXPECT_EQ(FindStrCnt(L"aaaa", L"aa"), 2);
  EXPECT_EQ(FindStrCnt(L"aaaaa", L"aa"), 2);
  EXPECT_EQ(FindStrCnt(L"", L"a"), 0);
  EXPECT_EQ(FindStrCnt(L"a", L"ab"), 0);
  EXPECT_EQ(FindStrCnt(L"Aa", L"a"), 1);
  EXPECT_EQ(FindStrCnt(L"ababab", L"ab"), 3);
  EXPECT_EQ(FindStrCnt(L"\r\r\n\n", L"\r\n"), 1);
}

struct CountCase {
  const wchar_t* text;
  TextCount count;  // chars, bytes, wide, wideSpaces, spaces, lineBreaks, tabs
};

class TextCountTest : public testing::TestWithParam<CountCase> {};

TEST_P(TextCountTest, CountsWhatThereIs) {
  EXPECT_EQ(GetTextCount(GetParam().text), GetParam().count);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, TextCountTest,
    testing::Values(
        CountCase{L"", {0, 0, 0, 0, 0, 0, 0}}, CountCase{L"ab あ\r\nc", {6, 8, 1, 0, 1, 1, 0}},
        CountCase{L"\r\n", {1, 2, 0, 0, 0, 1, 0}}, CountCase{L"　", {1, 2, 1, 1, 0, 0, 0}},
        CountCase{L"\t\t", {2, 2, 0, 0, 0, 0, 2}}, CountCase{L"a\nb\rc", {5, 5, 0, 0, 0, 0, 0}},
        CountCase{L"ｱｲｳ", {3, 3, 0, 0, 0, 0, 0}}, CountCase{L"\u0E01", {1, 1, 0, 0, 0, 0, 0}},
        CountCase{L"表示 文字　\r\n\tx ", {10, 16, 5, 1, 2, 1, 1}}));

TEST(CountLineTest, IsOneLineOfPlainNumbers) {
  EXPECT_EQ(GetTextCountInfo(L"ab あ\r\nc"),
            L"字数:6(4) 改行:1 8byte  全角:1(1) 半角:4(3) 全SP:0 半SP:1 タブ:0");
  EXPECT_EQ(GetTextCountInfo(L""),
            L"字数:0(0) 改行:0 0byte  全角:0(0) 半角:0(0) 全SP:0 半SP:0 タブ:0");
  EXPECT_EQ(GetTextCountInfo(L"\r\n"),
            L"字数:1(0) 改行:1 2byte  全角:0(0) 半角:0(0) 全SP:0 半SP:0 タブ:0");
  EXPECT_EQ(GetTextCountInfo(L"あ　い\tu v"),
            L"字数:7(4) 改行:0 10byte  全角:3(2) 半角:3(2) 全SP:1 半SP:1 タブ:1");
}

TEST(CountLineTest, AFailureIsReportedAndGivesNothing) {
  std::wstring title;
  std::wstring text;
  const auto before = platform::SetMessageBox([&](const std::wstring& t, const std::wstring& c) {
    text = t;
    title = c;
  });
  EXPECT_EQ(GetTextCountInfo(L"x", [](std::wstring_view) -> TextCount { throw std::bad_alloc(); }),
            L"");
  EXPECT_EQ(title, L"GetTextCountInfo");
  EXPECT_TRUE(text.starts_with(L"8 ")) << "number, blank, description";
  EXPECT_GT(text.size(), 3U);
  platform::SetMessageBox(before);
}

TEST(TextCountPropertyTest, CountsAddUp) {
  std::mt19937 random(20261120);
  constexpr wchar_t kUnits[] = L"aZ09 \t\r\n　あ漢ｱ,\"";
  for (int round = 0; round < 2000; ++round) {
    std::wstring text;
    const auto length = random() % 200;
    for (unsigned i = 0; i < length; ++i) text += kUnits[random() % (std::size(kUnits) - 1)];
    const TextCount count = GetTextCount(text);
    EXPECT_EQ(count.chars + count.lineBreaks, static_cast<std::int32_t>(text.size()));
    EXPECT_EQ(count.bytes, count.chars + count.lineBreaks + count.wide);
    std::int32_t wide = 0;
    for (const wchar_t unit : text) wide += unit == L'　' || unit == L'あ' || unit == L'漢';
    EXPECT_EQ(count.wide, wide);
    EXPECT_EQ(count.spaces, std::ranges::count(text, L' '));
    EXPECT_EQ(count.tabs, std::ranges::count(text, L'\t'));
  }
}

// The counts are about Japanese texts on every system.
TEST(CodePageCountTest, JapaneseCountsAsDoubleByteEverywhere) {
  EXPECT_EQ(platform::DoubleByteLength(L"aあｱ"), 4U);
}

}  // namespace
}  // namespace extract
