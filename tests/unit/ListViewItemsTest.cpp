#include "extract/ListViewItems.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <optional>

#include "../ReadItems.h"
#include "FakeTarget.h"
#include "bed/Needs.h"
#include "extract/CsvText.h"
#include "platform/TextCodec.h"

namespace extract {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr UINT kItemCount = 0x1004;
constexpr UINT kHeader = 0x101F;
constexpr UINT kHeaderItemCount = 0x1200;
constexpr UINT kItem = 0x1005;
const HWND kHeaderWindow = reinterpret_cast<HWND>(static_cast<std::uintptr_t>(0x5678));

using Fields = std::array<std::uint32_t, 10>;

class ListViewItemsTest : public testing::Test {
 protected:
  ListViewItemsTest() {
    target_.messages.answer = [this](UINT message, WPARAM, LPARAM record) {
      return Answer(message, record);
    };
  }

  std::wstring Read(std::int32_t listviewCol = 0) {
    return TextOf(
        [&](platform::ItemSink& sink) {
          return GetListViewItem(
              target_.hwnd, target_.capture.Session(), sink, listviewCol,
              [this](platform::ItemSink& children) {
                ++accessibleReads_;
                PutItem(children, L"accessible");
              },
              target_.Access());
        },
        target_.method);
  }

  std::int32_t Answer(UINT message, LPARAM record) {
    if (message == kItemCount) return rows_.value_or(static_cast<std::int32_t>(cells_.size()));
    if (message == kHeader) return header_;
    if (message == kHeaderItemCount) return columns_;
    if (message != kItem) return 0;
    Fields fields;
    std::memcpy(fields.data(), reinterpret_cast<const void*>(record), sizeof fields);
    records_.push_back(fields);
    char* const text = reinterpret_cast<char*>(static_cast<std::uintptr_t>(fields[5]));
    emptied_ = emptied_ && std::all_of(text, text + 256, [](char byte) { return byte == 0; });
    if (fields[1] >= cells_.size() || fields[2] >= cells_[fields[1]].size()) return 0;
    const std::string bytes = platform::ToAnsi(cells_[fields[1]][fields[2]]);
    std::memcpy(text, bytes.c_str(), std::min<std::size_t>(bytes.size() + 1, 512));
    return 1;
  }

  std::vector<std::vector<std::wstring>> cells_;
  std::optional<std::int32_t> rows_;
  std::int32_t columns_ = 3;
  std::int32_t header_ = 0x5678;
  std::vector<Fields> records_;
  bool emptied_ = true;
  int accessibleReads_ = 0;
  FakeTarget target_;
};

TEST_F(ListViewItemsTest, CellsAreSeparatedByTabsAndRowsEndWithALineEnd) {
  cells_ = {{L"a", L"b", L"c"}, {L"", L"", L"f"}, {L"g", L"", L""}};
  EXPECT_EQ(Read(), L"a\tb\tc\r\n\t\tf\r\ng\t\t\r\n");
  EXPECT_EQ(target_.method, L"LVM_GETITEMW");
  EXPECT_THAT(target_.capture.progress, ElementsAre(L"1/3", L"2/3", L"3/3"));
  EXPECT_EQ(target_.capture.yields, 3);
  EXPECT_EQ(accessibleReads_, 0);
}

TEST_F(ListViewItemsTest, JapaneseComesFromTheCodePage) {
  NEEDS(bed::CodePage932());
  columns_ = 2;
  cells_ = {{L"名前", L"種類 ｶﾅ"}, {L"表示", L"a,\"b\""}};
  EXPECT_EQ(Read(), L"名前\t種類 ｶﾅ\r\n表示\ta,\"b\"\r\n");
}

TEST_F(ListViewItemsTest, TheRecordAndTheEmptyTextAreWrittenForEveryCell) {
  columns_ = 2;
  cells_ = {{L"a", L"b"}, {L"c", L"d"}};
  Read();
  const auto text =
      static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(target_.memory.blocks[1].get()));
  std::vector<Fields> expected;
  for (std::uint32_t row : {0U, 1U}) {
    for (std::uint32_t column : {0U, 1U}) {
      expected.push_back({1, row, column, 0, 0, text, 512, 0, 0, 0});
    }
  }
  EXPECT_THAT(records_, ElementsAreArray(expected));
  EXPECT_TRUE(emptied_);
  // Block 0 holds the record, block 1 the text.
  std::vector<std::string> calls{"OpenProcess 38 0 4d", "VirtualAllocEx 51 0 28 3000 4",
                                 "OpenProcess 38 0 4d", "VirtualAllocEx 52 0 100 3000 4"};
  for (int i = 0; i < 4; ++i) {
    calls.insert(calls.end(), {"Write 0 28", "Write 1 100", "Read 1 100"});
  }
  calls.insert(calls.end(), {"VirtualFreeEx 52 1 200 ffff8000", "CloseHandle 52",
                             "VirtualFreeEx 51 0 28 ffff8000", "CloseHandle 51"});
  EXPECT_THAT(target_.memory.calls, ElementsAreArray(calls));
}

TEST_F(ListViewItemsTest, TheMessages) {
  columns_ = 1;
  cells_ = {{L"a"}};
  Read();
  const auto& sent = target_.messages.sent;
  ASSERT_EQ(sent.size(), 4U);
  const struct {
    UINT message;
    HWND hwnd;
  } expected[] = {{kItemCount, target_.hwnd},
                  {kHeader, target_.hwnd},
                  {kHeaderItemCount, kHeaderWindow},
                  {kItem, target_.hwnd}};
  for (std::size_t i = 0; i < sent.size(); ++i) {
    EXPECT_EQ(sent[i].message, expected[i].message);
    EXPECT_EQ(sent[i].hwnd, expected[i].hwnd) << i;
    EXPECT_EQ(sent[i].wParam, 0U) << i;
    EXPECT_EQ(sent[i].lParam != 0, sent[i].message == kItem) << i;
  }
  EXPECT_EQ(target_.messages.askedProcessOf, target_.hwnd);
}

TEST_F(ListViewItemsTest, A64BitSystemIsReadThroughAccessibility) {
  cells_ = {{L"a", L"b", L"c"}};
  for (const bool targetIs64 : {false, true}) {
    target_.memory.Be64BitSystem(targetIs64);
    target_.method.clear();
    EXPECT_EQ(Read(), L"accessible\r\n");
    EXPECT_EQ(target_.method, L"Accessible");
  }
  EXPECT_EQ(accessibleReads_, 2);
  EXPECT_THAT(target_.messages.sent, IsEmpty());
  EXPECT_THAT(target_.memory.calls, IsEmpty());
}

TEST_F(ListViewItemsTest, NoWindowAndNoRowsGiveNothing) {
  for (const std::int32_t rows : {0, -1, INT32_MIN}) {
    rows_ = rows;
    EXPECT_EQ(Read(), L"");
  }
  platform::TextSink sink;
  GetListViewItem(nullptr, target_.capture.Session(), sink, 0, {}, target_.Access());
  EXPECT_EQ(sink.Take(), L"");
  EXPECT_EQ(target_.method, L"(untouched)");
  EXPECT_EQ(target_.messages.Count(kHeader), 0);
  EXPECT_EQ(accessibleReads_, 0);
}

TEST_F(ListViewItemsTest, WithoutColumnsTheAccessibleObjectIsRead) {
  cells_ = {{L"a"}};
  for (const std::int32_t columns : {0, -1}) {
    columns_ = columns;
    target_.method.clear();
    EXPECT_EQ(Read(), L"accessible\r\n");
    EXPECT_EQ(target_.method, L"Accessible");
  }
  header_ = 0;
  target_.method.clear();
  EXPECT_EQ(Read(), L"accessible\r\n");
  EXPECT_EQ(target_.method, L"Accessible");
  EXPECT_EQ(target_.messages.Count(kHeaderItemCount), 2) << "no message to no window";
  EXPECT_EQ(target_.messages.Count(kItem), 0);
  EXPECT_THAT(target_.memory.calls, IsEmpty());
}

TEST_F(ListViewItemsTest, WithoutAnyCellTextTheAccessibleObjectIsRead) {
  cells_ = {{L"", L"", L""}, {L"", L"", L""}};
  EXPECT_EQ(Read(), L"accessible\r\n");
  EXPECT_EQ(target_.method, L"Accessible");
  EXPECT_EQ(accessibleReads_, 1);
  EXPECT_EQ(target_.memory.calls.back(), "CloseHandle 51");
}

TEST_F(ListViewItemsTest, OnlyTheFirstColumnWhenTheSettingSaysSo) {
  cells_ = {{L"a", L"b", L"c"}, {L"", L"e", L"f"}, {L"g", L"", L""}};
  EXPECT_EQ(Read(kFirstColumnOnly), L"a\r\n\r\ng\r\n");
  EXPECT_EQ(target_.messages.Count(kItem), 3);
}

TEST_F(ListViewItemsTest, RowsForCommasAreReadWithTabs) {
  columns_ = 2;
  cells_ = {{L"a", L"b,c"}, {L"d\"e", L""}};
  EXPECT_EQ(ToCsv(Read(1)), L"a,\"b,c\"\r\n\"d\"\"e\",\r\n\r\n");
}

TEST_F(ListViewItemsTest, ANewTargetInterruptsAfterTheRow) {
  cells_ = {{L"a", L"b", L"c"}, {L"d", L"e", L"f"}, {L"g", L"h", L"i"}};
  target_.capture.onYield = [&] {
    if (target_.capture.yields == 2) target_.capture.GoElsewhere();
  };
  EXPECT_EQ(Read(), L"a\tb\tc\r\nd\te\tf\r\n・・・中断・・・");
  EXPECT_EQ(target_.method, L"LVM_GETITEMW");
  EXPECT_EQ(target_.messages.Count(kItem), 6);
}

TEST_F(ListViewItemsTest, TheEndOfTheCaptureInterruptsAfterTheRow) {
  cells_ = {{L"a", L"b", L"c"}, {L"d", L"e", L"f"}};
  target_.capture.onYield = [&] { target_.capture.running = false; };
  EXPECT_EQ(Read(), L"a\tb\tc\r\n・・・中断・・・");
  EXPECT_EQ(target_.method, L"LVM_GETITEMW");
}

TEST_F(ListViewItemsTest, AChangeAfterTheLastRowIsAnInterruptionToo) {
  columns_ = 1;
  cells_ = {{L"a"}};
  target_.capture.onYield = [&] { target_.capture.GoElsewhere(); };
  EXPECT_EQ(Read(), L"a\r\n・・・中断・・・");
}

TEST_F(ListViewItemsTest, AnInterruptedReadingOfEmptyCellsIsNotBegunAnew) {
  cells_ = {{L"", L"", L""}, {L"", L"", L""}};
  target_.capture.onYield = [&] { target_.capture.GoElsewhere(); };
  EXPECT_EQ(Read(), L"\t\t\r\n・・・中断・・・");
  EXPECT_EQ(accessibleReads_, 0);
}

TEST_F(ListViewItemsTest, TargetsWithoutMemoryForUsGiveNothing) {
  cells_ = {{L"a", L"b", L"c"}};
  for (const int blocks : {0, 1}) {
    target_.memory.mostBlocks = blocks;
    target_.memory.calls.clear();
    EXPECT_EQ(Read(), L"");
    EXPECT_EQ(target_.method, L"(untouched)");
    const auto& calls = target_.memory.calls;
    EXPECT_EQ(std::count_if(calls.begin(), calls.end(),
                            [](const auto& call) { return call.starts_with("VirtualFreeEx"); }),
              blocks);
    EXPECT_EQ(std::count_if(calls.begin(), calls.end(),
                            [](const auto& call) { return call.starts_with("CloseHandle"); }),
              2);
  }
  target_.memory.opens = false;
  EXPECT_EQ(Read(), L"");
  EXPECT_EQ(target_.messages.Count(kItem), 0);
  EXPECT_EQ(accessibleReads_, 0);
}

TEST_F(ListViewItemsTest, ATargetThatEndsMeanwhileLeavesWhatWasRead) {
  cells_ = {{L"a", L"b", L"c"}, {L"d", L"e", L"f"}};
  target_.capture.onYield = [&] { target_.memory.lost = true; };
  EXPECT_EQ(Read(), L"a\tb\tc\r\n");
  EXPECT_EQ(target_.method, L"(untouched)");
  EXPECT_EQ(target_.memory.calls.back(), "CloseHandle 51") << "the blocks are released";
}

TEST_F(ListViewItemsTest, TheOlderFamilyUsesSharedBlocks) {
  target_.memory.platform = 1;
  columns_ = 1;
  cells_ = {{L"a"}, {L"b"}};
  EXPECT_EQ(Read(), L"a\r\nb\r\n");
  const auto& calls = target_.memory.calls;
  EXPECT_EQ(calls[0], "OpenFileMapping 40 f001f 0");
  EXPECT_EQ(calls[4], "OpenFileMapping 256 f001f 0");
}

TEST_F(ListViewItemsTest, ACellThatFillsTheBlockIsCutThere) {
  columns_ = 1;
  cells_ = {{std::wstring(255, L'a')}, {std::wstring(256, L'b')}, {std::wstring(400, L'c')}};
  EXPECT_EQ(Read(), std::wstring(255, L'a') + L"\r\n" + std::wstring(256, L'b') + L"\r\n" +
                        std::wstring(256, L'c') + L"\r\n");
}

TEST_F(ListViewItemsTest, AHugeNumberOfColumnsIsNotBelieved) {
  columns_ = INT32_MAX;
  cells_ = {{L"a"}};
  const std::wstring text = Read();
  EXPECT_EQ(text, L"a" + std::wstring(1023, L'\t') + L"\r\n");
}

TEST_F(ListViewItemsTest, AHugeNumberOfRowsEndsWithTheCapture) {
  rows_ = INT32_MAX;
  columns_ = 1;
  cells_ = {{L"a"}};
  target_.capture.onYield = [&] { target_.capture.running = target_.capture.yields < 5; };
  EXPECT_EQ(Read(), L"a\r\n\r\n\r\n\r\n\r\n・・・中断・・・");
  EXPECT_EQ(target_.capture.progress.back(), L"5/2147483647");
}

}  // namespace
}  // namespace extract
