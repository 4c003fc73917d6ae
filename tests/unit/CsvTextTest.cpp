#include "extract/CsvText.h"

#include <gtest/gtest.h>

namespace extract {
namespace {

TEST(CsvTextTest, RowsAndCells) {
  struct Case {
    const wchar_t* text;
    const wchar_t* csv;
  };
  constexpr Case kCases[] = {
      {L"", L""},
      {L"a", L"a\r\n"},
      {L"a\tb", L"a,b\r\n"},
      {L"a\tb,c\r\nd\"e", L"a,\"b,c\"\r\n\"d\"\"e\"\r\n"},
      {L"a\r\n", L"a\r\n\r\n"},
      {L"\r\n", L"\r\n\r\n"},
      {L"\t", L",\r\n"},
      {L"\t\t\r\n\ta", L",,\r\n,a\r\n"},
      {L"a\nb\tc\rd", L"\"a\nb\",\"c\rd\"\r\n"},
      {L"\"", L"\"\"\"\"\r\n"},
      {L"\"a\"", L"\"\"\"a\"\"\"\r\n"},
      {L"名前\t型", L"名前,型\r\n"},
      {L"a b\t c ", L"a b, c \r\n"},
      {L"a\r\r\nb", L"\"a\r\"\r\nb\r\n"},
      {L"a\n\r\nb", L"\"a\n\"\r\nb\r\n"},
  };
  for (const Case& one : kCases) EXPECT_EQ(ToCsv(one.text), one.csv) << one.text;
}

TEST(CsvTextTest, ALongTableTakesOneStepACharacter) {
  std::wstring text;
  std::wstring csv;
  for (int i = 0; i < 200'000; ++i) {
    text += L"a\t\"\r\n";
    csv += L"a,\"\"\"\"\r\n";
  }
  EXPECT_EQ(ToCsv(text), csv + L"\r\n");
}

}  // namespace
}  // namespace extract
