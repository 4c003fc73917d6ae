#include "extract/ListViewRows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <utility>

#include "../ReadItems.h"
#include "FakeRecords.h"

namespace extract {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr UINT kCount = 0x1004;
constexpr UINT kHeader = 0x101F;
constexpr UINT kColumns = 0x1200;
constexpr UINT kItem = 0x104B;

class ListViewRowsTest : public testing::TestWithParam<bool> {
 protected:
  ListViewRowsTest() {
    if (GetParam()) target_.memory.Be64BitSystem(true);
    target_.messages.answer = [this](UINT message, WPARAM wParam, LPARAM record) {
      return Answer(message, wParam, record);
    };
  }

  std::int32_t Answer(UINT message, WPARAM, LPARAM address) {
    if (message == kCount) return rows_;
    if (message == kHeader) return header_;
    if (message == kColumns) return columns_;
    if (message != kItem) return 0;
    const FakeRecord record(address, {GetParam() ? 24U : 20U, GetParam() ? 32U : 24U, GetParam()});
    EXPECT_EQ(record.Get<std::uint32_t>(0), 1U);
    const std::pair cell(record.Get<std::int32_t>(4), record.Get<std::int32_t>(8));
    asked_.push_back(cell);
    if (onItem) onItem();
    if (own_.contains(cell)) {
      record.PointTo(own_[cell]);
    } else if (cells_.contains(cell)) {
      record.Give(cells_[cell]);
    }
    return 1;
  }

  std::wstring Read(std::int32_t listviewCol = 0) {
    return TextOf(
        [&](platform::ItemSink& sink) {
          return GetListViewRows(target_.hwnd, target_.capture.Session(), sink, listviewCol,
                                 target_.Access());
        },
        target_.method);
  }

  std::map<std::pair<std::int32_t, std::int32_t>, std::wstring> cells_;
  std::map<std::pair<std::int32_t, std::int32_t>, std::uint64_t> own_;  // texts of the control
  std::vector<std::pair<std::int32_t, std::int32_t>> asked_;
  std::function<void()> onItem;
  std::int32_t rows_ = 2;
  std::int32_t columns_ = 2;
  std::int32_t header_ = 0x55;
  FakeTarget target_;
};

INSTANTIATE_TEST_SUITE_P(Bitness, ListViewRowsTest, testing::Bool(),
                         [](const auto& is64) { return is64.param ? "Target64" : "Target32"; });

TEST_P(ListViewRowsTest, EveryCellOfEveryRow) {
  cells_ = {{{0, 0}, L"林檎"}, {{0, 1}, L"赤"}, {{1, 1}, L"🍊\t橙"}};
  EXPECT_EQ(Read(), L"林檎\t赤\r\n\t🍊\t橙\r\n");
  EXPECT_EQ(target_.method, L"LVM_GETITEMW");
  EXPECT_THAT(target_.capture.progress, ElementsAre(L"1/2", L"2/2"));
  EXPECT_EQ(target_.capture.yields, 2);
}

TEST_P(ListViewRowsTest, WithoutColumnsTheLabels) {
  cells_ = {{{0, 0}, L"a"}, {{1, 0}, L"b"}};
  header_ = 0;
  EXPECT_EQ(Read(), L"a\r\nb\r\n");
  header_ = 0x55;
  for (const std::int32_t columns : {0, -5}) {
    columns_ = columns;
    EXPECT_EQ(Read(), L"a\r\nb\r\n") << columns;
  }
}

TEST_P(ListViewRowsTest, TheFirstColumnAlone) {
  cells_ = {{{0, 0}, L"a"}, {{0, 1}, L"x"}, {{1, 0}, L"b"}};
  EXPECT_EQ(Read(2), L"a\r\nb\r\n");
}

// The rest of a long text is asked for once more, the other cells are not.
TEST_P(ListViewRowsTest, TextsAreWhole) {
  const std::wstring usual(258, L'u');
  const std::wstring fills(259, L'f');
  const std::wstring large(300'000, L'l');
  cells_ = {{{0, 0}, usual}, {{0, 1}, fills}, {{1, 0}, large}, {{1, 1}, L"z"}};
  EXPECT_EQ(Read(), usual + L"\t" + fills + L"\r\n" + large + L"\tz\r\n");
  EXPECT_EQ(std::ranges::count(asked_, std::pair(0, 0)), 1);
  EXPECT_EQ(std::ranges::count(asked_, std::pair(1, 1)), 1);
}

TEST_P(ListViewRowsTest, ManyRowsGoOverInFewCalls) {
  rows_ = 1000;
  columns_ = 3;
  for (int row = 0; row < rows_; ++row) cells_[{row, 2}] = std::to_wstring(row);
  std::wstring expected;
  for (int row = 0; row < rows_; ++row) expected += L"\t\t" + std::to_wstring(row) + L"\r\n";
  EXPECT_EQ(Read(), expected);
  int transfers = 0;
  for (const std::string& call : target_.memory.calls) {
    transfers += call.starts_with("Read") || call.starts_with("Write") ? 1 : 0;
  }
  EXPECT_LT(transfers, 100);
  EXPECT_EQ(target_.messages.Count(kItem), 3000);
}

// Many columns: a row is then more than what usually goes over at once.
TEST_P(ListViewRowsTest, ManyColumns) {
  columns_ = 400;
  cells_ = {{{1, 399}, L"last"}};
  const std::wstring text = Read();
  EXPECT_EQ(std::ranges::count(text, L'\t'), 2 * 399);
  EXPECT_TRUE(text.ends_with(L"\tlast\r\n"));
  columns_ = 2'000'000'000;
  rows_ = 1;
  EXPECT_EQ(std::ranges::count(Read(), L'\t'), 1023);
}

TEST_P(ListViewRowsTest, ATextOfTheControlsOwnIsRead) {
  static const wchar_t kOwn[] = L"自前の文字列";
  cells_ = {{{0, 0}, L"a"}};
  own_ = {{{0, 1}, reinterpret_cast<std::uintptr_t>(kOwn)}, {{1, 0}, 0}};
  own_[{1, 1}] = GetParam() ? ~std::uint64_t{0} : 0xFFFFFFFF;
  EXPECT_EQ(Read(), L"a\t自前の文字列\r\n\t\r\n");
}

TEST_P(ListViewRowsTest, ATextAbove4GbIsReadToo) {
  if (!GetParam()) return;
  rows_ = 1;
  target_.memory.farText = std::wstring(5000, L'遠') + L'\0' + std::wstring(4096, L'x');
  for (const std::uint64_t address : {0x7FFF'1234'5008U, 0x1'0000'0000U}) {
    target_.memory.farAddress = address;
    own_ = {{{0, 0}, address}, {{0, 1}, 0x7FFF'0000'0000}};
    EXPECT_EQ(Read(), std::wstring(5000, L'遠') + L"\t\r\n");
  }
}

TEST_P(ListViewRowsTest, StopsAfterTheRowInWhichThePointerLeaves) {
  rows_ = 100;
  cells_ = {{{0, 0}, L"a"}, {{1, 0}, L"b"}, {{2, 0}, L"c"}};
  target_.capture.moveOnAfter = 2;
  EXPECT_EQ(Read(), L"a\t\r\nb\t\r\n・・・中断・・・");
  EXPECT_EQ(target_.method, L"LVM_GETITEMW");
}

TEST_P(ListViewRowsTest, StopsWhenTheCaptureEnds) {
  rows_ = 100;
  cells_ = {{{0, 0}, L"a"}};
  target_.capture.endAfter = 1;
  EXPECT_EQ(Read(), L"a\t\r\n・・・中断・・・");
}

TEST_P(ListViewRowsTest, NoRowsGiveNothing) {
  for (const std::int32_t rows : {0, -1}) {
    rows_ = rows;
    EXPECT_EQ(Read(), L"");
  }
}

TEST_P(ListViewRowsTest, TheBlockIsReallyReleased) {
  Read();
  EXPECT_THAT(target_.memory.calls, Contains(HasSubstr("VirtualFreeEx 51 0 0 8000")));
  EXPECT_THAT(target_.memory.calls, Contains("CloseHandle 51"));
}

// A 64-bit process would take a larger address for another one.
TEST_P(ListViewRowsTest, ABlockAbove2GbIsNotUsed) {
  target_.memory.placeOfBlock = reinterpret_cast<void*>(0xFE010000);
  EXPECT_EQ(Read(), L"");
  EXPECT_EQ(target_.method, L"(untouched)");
  EXPECT_EQ(target_.messages.Count(kItem), 0);
  EXPECT_THAT(target_.memory.calls, Contains(HasSubstr("VirtualFreeEx 51")));
  EXPECT_THAT(target_.memory.calls, Contains("CloseHandle 51"));
}

TEST_P(ListViewRowsTest, WithoutMemoryInTheTargetNothingIsAsked) {
  target_.memory.mostBlocks = 0;
  EXPECT_EQ(Read(), L"");
  target_.memory.opens = false;
  EXPECT_EQ(Read(), L"");
  target_.memory.platform = VER_PLATFORM_WIN32_WINDOWS;
  EXPECT_EQ(Read(), L"");
  EXPECT_EQ(target_.messages.Count(kItem), 0);
  EXPECT_EQ(target_.method, L"(untouched)");
}

TEST_P(ListViewRowsTest, ATargetThatDiesLeavesTheRowsBefore) {
  rows_ = 1000;
  columns_ = 1;
  cells_ = {{{0, 0}, L"a"}};
  onItem = [this] {
    if (asked_.size() == 500) throw TargetLost();
  };
  EXPECT_THAT(Read(), testing::StartsWith(L"a\r\n\r\n"));
  EXPECT_EQ(target_.method, L"(untouched)");
  EXPECT_THAT(target_.memory.calls, Contains(HasSubstr("VirtualFreeEx")));
}

}  // namespace
}  // namespace extract
