#include "platform/NumberText.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

struct NumberCase {
  std::wstring_view text;
  std::int32_t number;
};

class LeadingNumberTest : public testing::TestWithParam<NumberCase> {};

TEST_P(LeadingNumberTest, ReadsWhatTheTextBeginsWith) {
  EXPECT_EQ(LeadingNumber(GetParam().text), GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, LeadingNumberTest,
    testing::Values(
        NumberCase{L"", 0}, NumberCase{L"0", 0}, NumberCase{L"7", 7}, NumberCase{L"12abc", 12},
        NumberCase{L"abc", 0}, NumberCase{L"a1", 0}, NumberCase{L"12.5", 12},
        NumberCase{L"13.5", 14}, NumberCase{L"12.50", 12}, NumberCase{L"12.5000001", 13},
        NumberCase{L"12.49999", 12}, NumberCase{L"-5", -5}, NumberCase{L"+5", 5},
        NumberCase{L"-12.5", -12}, NumberCase{L"-13.5", -14}, NumberCase{L"-0.5", 0},
        NumberCase{L"-0.6", -1}, NumberCase{L".7", 1}, NumberCase{L".5", 0}, NumberCase{L"1.5", 2},
        NumberCase{L"3.", 3}, NumberCase{L"3..5", 3}, NumberCase{L"1.2.9", 1}, NumberCase{L"5-", 5},
        NumberCase{L"-", 0}, NumberCase{L"--5", 0}, NumberCase{L"- 5", 0}, NumberCase{L"   42", 42},
        NumberCase{L"4 2", 4}, NumberCase{L"1e3", 1}, NumberCase{L"&H10", 0},
        NumberCase{L"１２", 0}, NumberCase{L"\t5", 0}, NumberCase{L"007", 7},
        NumberCase{L"2147483647", 2147483647}, NumberCase{L"2147483648", 2147483647},
        NumberCase{L"2147483646.5", 2147483646}, NumberCase{L"2147483647.5", 2147483647},
        NumberCase{L"-2147483648", -2147483647 - 1}, NumberCase{L"-2147483649", -2147483647 - 1},
        NumberCase{L"99999999999999999999999999999999", 2147483647},
        NumberCase{L"-99999999999999999999999999999999", -2147483647 - 1}));

TEST(HexadecimalTest, HasUpperCaseDigitsWithoutAPrefix) {
  EXPECT_EQ(Hexadecimal(0), L"0");
  EXPECT_EQ(Hexadecimal(0x1408B4), L"1408B4");
  EXPECT_EQ(Hexadecimal(-1), L"FFFFFFFF");
}

TEST(RightAlignedTest, FillsUpWithBlanksAndNeverCuts) {
  EXPECT_EQ(RightAligned(L"5", 2), L" 5");
  EXPECT_EQ(RightAligned(L"10", 2), L"10");
  EXPECT_EQ(RightAligned(L"", 3), L"   ");
  EXPECT_EQ(RightAligned(L"-2147483648", 4), L"-2147483648");
}

}  // namespace
}  // namespace platform
