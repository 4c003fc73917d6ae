#include "extract/CsvText.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <vector>

namespace extract {
namespace {

// Reserves all address ranges of this process that could hold a large block.
class NoRoomForLargeBlocks {
 public:
  NoRoomForLargeBlocks() {
    void* block = nullptr;
    while ((block = VirtualAlloc(nullptr, kLarge, MEM_RESERVE, PAGE_NOACCESS)) != nullptr) {
      taken_.push_back(block);
    }
  }
  ~NoRoomForLargeBlocks() {
    for (void* const block : taken_) VirtualFree(block, 0, MEM_RELEASE);
  }
  NoRoomForLargeBlocks(const NoRoomForLargeBlocks&) = delete;
  NoRoomForLargeBlocks& operator=(const NoRoomForLargeBlocks&) = delete;

 private:
  static constexpr SIZE_T kLarge = 8U << 20;
  std::vector<void*> taken_;
};

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

TEST(CsvTextTest, WithoutMemoryForAllOfItThereIsWhatFitted) {
  std::wstring text;
  for (int row = 0; row < 1'000'000; ++row) text += L"a,b\t\"\r\n";
  const std::wstring whole = ToCsv(text);
  std::wstring csv;
  {
    const NoRoomForLargeBlocks full;
    csv = ToCsv(text);
  }
  EXPECT_GT(csv.size(), 100'000U);
  EXPECT_LT(csv.size(), whole.size());
  EXPECT_TRUE(whole.starts_with(csv));
  EXPECT_EQ(ToCsv(text), whole);
}

}  // namespace
}  // namespace extract
