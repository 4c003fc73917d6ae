#include "extract/StringUtilities.h"

#include <gtest/gtest.h>

#include "platform/ErrorReport.h"

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

TEST(CutDblQuotTest, RemovesBlanksAndQuotesRepeatedly) {
  EXPECT_EQ(CutDblQuot(L"  \" \"a\" \"  "), L"a");
  EXPECT_EQ(CutDblQuot(L"\"\""), L"");
  EXPECT_EQ(CutDblQuot(L""), L"");
  EXPECT_EQ(CutDblQuot(L"   "), L"");
  EXPECT_EQ(CutDblQuot(L"\"a"), L"\"a");
  EXPECT_EQ(CutDblQuot(L"a\""), L"a\"");
  EXPECT_EQ(CutDblQuot(L"\"a\"b\""), L"a\"b");
  EXPECT_EQ(CutDblQuot(L"\ta\t"), L"\ta\t");
  EXPECT_EQ(CutDblQuot(L"　a　"), L"　a　");
}

TEST(CutDblQuotTest, ASingleQuoteIsInvalid) {
  EXPECT_THROW(CutDblQuot(L"\""), platform::NumberedError);
  EXPECT_THROW(CutDblQuot(L" \" "), platform::NumberedError);
  EXPECT_THROW(CutDblQuot(L"\"\"\""), platform::NumberedError);
}

TEST(FileExistsTest, LooksBesideTheProgram) {
  EXPECT_TRUE(FileExists(L"unit_tests.exe"));
  EXPECT_TRUE(FileExists(L".\\unit_tests.exe"));
  EXPECT_TRUE(FileExists(L" \"unit_tests.exe\" "));
  EXPECT_FALSE(FileExists(L"no such file.exe"));
  EXPECT_FALSE(FileExists(L"C:\\windows"));  // a folder
  EXPECT_TRUE(FileExists(L"C:\\windows\\win.ini"));
}

TEST(FileExistsTest, ErrorsReachTheCaller) {
  const auto before = platform::SetMessageBox([](const std::wstring&, const std::wstring&) {});
  EXPECT_THROW(FileExists(L"\""), platform::NumberedError);
  platform::SetMessageBox(before);
}

TEST(CompareTest, TakesAnyValue) {
  EXPECT_EQ(MaxOf(2, 3), 3);
  EXPECT_EQ(MinOf(2, 3), 2);
  EXPECT_EQ(MaxOf(std::wstring(L"b"), std::wstring(L"a")), L"b");
  EXPECT_EQ(MinOf(1.5, -1.5), -1.5);
  const int first = 2;
  const int equal = 2;
  EXPECT_EQ(&MaxOf(first, equal), &first);
  EXPECT_EQ(&MinOf(first, equal), &first);
  EXPECT_FALSE(IsPositive(0));
  EXPECT_TRUE(IsPositive(1));
  EXPECT_FALSE(IsPositive(-1));
}

}  // namespace
}  // namespace extract
