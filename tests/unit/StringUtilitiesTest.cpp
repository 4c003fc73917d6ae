#include "extract/StringUtilities.h"

#include <gtest/gtest.h>

namespace extract {
namespace {

TEST(ReplacedTest, ReplacesFromTheLeft) {
  EXPECT_EQ(Replaced(L"aaaaa", L"aa", L"b"), L"bba");
  EXPECT_EQ(Replaced(L"", L"x", L"y"), L"");
  EXPECT_EQ(Replaced(L"no", L"x", L"y"), L"no");
  EXPECT_EQ(Replaced(L"a - debug - debug", L" - debug", L""), L"a");
}

TEST(WithCrLfTest, TurnsALoneLineFeedIntoALineEnd) {
  EXPECT_EQ(WithCrLf(L"a\nb\r\nc\rd", L"%!LF!%"), L"a\r\nb\r\nc\rd");
  EXPECT_EQ(WithCrLf(L"\n\n", L"\x01"), L"\r\n\r\n");
  EXPECT_EQ(WithCrLf(L"\r\r\n", L"\x01"), L"\r\r\n");
  EXPECT_EQ(WithCrLf(L"", L"\x01"), L"");
}

TEST(WithCrLfTest, ThePlaceholderItselfBecomesALineEnd) {
  EXPECT_EQ(WithCrLf(L"a%!LF!%b", L"%!LF!%"), L"a\r\nb");
  EXPECT_EQ(WithCrLf(L"a\x01"
                     L"b",
                     L"\x01"),
            L"a\r\nb");
}

TEST(UpToNulTest, NeedsAZeroCharacter) {
  EXPECT_EQ(UpToNul(std::wstring(L"ab\0cd", 5)), L"ab");
  EXPECT_EQ(UpToNul(std::wstring(L"\0", 1)), L"");
  EXPECT_EQ(UpToNul(L"full buffer"), L"");
  EXPECT_EQ(UpToNul(L""), L"");
}

TEST(ContainsIgnoringCaseTest, FindsAPart) {
  EXPECT_TRUE(ContainsIgnoringCase(L"edit,DirectUIHWND", L"EDIT"));
  EXPECT_TRUE(ContainsIgnoringCase(L"edit,DirectUIHWND", L"t,D"));
  EXPECT_FALSE(ContainsIgnoringCase(L"edit,DirectUIHWND", L"RichEdit20W"));
  EXPECT_TRUE(ContainsIgnoringCase(L"edit", L""));
  EXPECT_FALSE(ContainsIgnoringCase(L"", L"edit"));
}

}  // namespace
}  // namespace extract
