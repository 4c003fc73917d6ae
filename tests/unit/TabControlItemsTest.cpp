#include "extract/TabControlItems.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "../ReadItems.h"
#include "FakeTarget.h"
#include "platform/TextCodec.h"

namespace extract {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::ElementsAreArray;

constexpr UINT kTabCount = 0x1304;
constexpr UINT kTab = 0x1305;

class TabControlItemsTest : public testing::Test {
 protected:
  TabControlItemsTest() {
    target_.messages.answer = [this](UINT message, WPARAM tab, LPARAM record) {
      return Answer(message, tab, record);
    };
  }

  std::wstring Read() {
    return ReadText(GetTabControlItem, target_.hwnd, target_.capture.Session(), target_.method,
                    target_.Access());
  }

  std::int32_t Answer(UINT message, WPARAM tab, LPARAM record) {
    if (message == kTabCount) return count_.value_or(static_cast<std::int32_t>(tabs_.size()));
    if (message != kTab) return 0;
    std::vector<std::uint32_t> fields(is64_ ? 10U : 7U);
    std::memcpy(fields.data(), reinterpret_cast<const void*>(record), fields.size() * 4);
    records_.push_back(fields);
    if (tab >= tabs_.size() || !tabs_[tab]) return 0;
    const std::string bytes = platform::ToAnsi(*tabs_[tab]);
    char* const text =
        reinterpret_cast<char*>(static_cast<std::uintptr_t>(fields[is64_ ? 4U : 3U]));
    std::memcpy(text, bytes.c_str(), std::min<std::size_t>(bytes.size() + 1, 256));
    return 1;
  }

  std::uint32_t TextAddress() const {
    return static_cast<std::uint32_t>(
        reinterpret_cast<std::uintptr_t>(target_.memory.blocks[1].get()));
  }

  std::vector<std::optional<std::wstring>> tabs_;
  std::optional<std::int32_t> count_;
  bool is64_ = false;
  std::vector<std::vector<std::uint32_t>> records_;
  FakeTarget target_;
};

TEST_F(TabControlItemsTest, EveryCaptionIsALine) {
  tabs_ = {L"General", L"", L"a,\tb"};
  EXPECT_EQ(Read(), L"General\r\n\r\na,\tb\r\n");
  EXPECT_EQ(target_.method, L"TCM_GETITEM");
  EXPECT_THAT(target_.capture.progress, ElementsAre(L"1/ --3", L"2/ --3", L"3/ --3"));
  EXPECT_EQ(target_.capture.yields, 3);
}

TEST_F(TabControlItemsTest, TheRecordOfA32BitTarget) {
  tabs_ = {L"a", L"b"};
  for (const bool on64 : {false, true}) {
    if (on64) target_.memory.Be64BitSystem(false);
    records_.clear();
    target_.memory.blocks.clear();
    Read();
    const std::vector<std::uint32_t> expected{1, 0, 0, TextAddress(), 256, 0, 0};
    EXPECT_THAT(records_, ElementsAre(expected, expected)) << on64;
  }
}

TEST_F(TabControlItemsTest, TheRecordOfA64BitTarget) {
  tabs_ = {L"a", L"b"};
  is64_ = true;
  target_.memory.Be64BitSystem(true);
  EXPECT_EQ(Read(), L"a\r\nb\r\n");
  const std::vector<std::uint32_t> expected{1, 0, 0, 0, TextAddress(), 0, 256, 0, 0, 0};
  EXPECT_THAT(records_, ElementsAre(expected, expected));
}

TEST_F(TabControlItemsTest, ATargetThatDoesNotTellItsKindIsNotGivenAnyRecord) {
  tabs_ = {L"a"};
  target_.memory.Be64BitSystem(true);
  target_.memory.mayQuery = false;
  EXPECT_EQ(Read(), L"");
  EXPECT_EQ(target_.method, L"(untouched)");
  EXPECT_EQ(target_.messages.Count(kTab), 0);
}

TEST_F(TabControlItemsTest, TheBlocks) {
  tabs_ = {L"a"};
  Read();
  EXPECT_THAT(target_.memory.calls,
              ElementsAre("OpenProcess 38 0 4d", "VirtualAllocEx 51 0 1c 3000 4",
                          "OpenProcess 38 0 4d", "VirtualAllocEx 52 0 100 3000 4", "Write 1 100",
                          "Write 0 1c", "Read 1 100", "VirtualFreeEx 52 1 100 ffff8000",
                          "CloseHandle 52", "VirtualFreeEx 51 0 1c ffff8000", "CloseHandle 51"));
  EXPECT_EQ(target_.messages.sent[1].message, kTab);
  EXPECT_EQ(target_.messages.sent[1].wParam, 0U);
}

TEST_F(TabControlItemsTest, ATabThatIsNotGivenDoesNotRepeatTheOneBefore) {
  tabs_ = {L"a", std::nullopt, L"c"};
  EXPECT_EQ(Read(), L"a\r\n\r\nc\r\n");
}

TEST_F(TabControlItemsTest, ACaptionThatFillsTheBlockIsCutThere) {
  tabs_ = {std::wstring(255, L'a'), std::wstring(300, L'b')};
  EXPECT_EQ(Read(), std::wstring(255, L'a') + L"\r\n" + std::wstring(256, L'b') + L"\r\n");
}

TEST_F(TabControlItemsTest, AControlWithoutTabsIsNoTextWithALabel) {
  for (const std::int32_t count : {0, -1, INT32_MIN}) {
    count_ = count;
    target_.method.clear();
    EXPECT_EQ(Read(), L"");
    EXPECT_EQ(target_.method, L"TCM_GETITEM");
  }
}

TEST_F(TabControlItemsTest, ANewTargetInterruptsBeforeTheNextTab) {
  tabs_ = {L"a", L"b", L"c"};
  target_.capture.onYield = [&] {
    if (target_.capture.yields == 2) target_.capture.GoElsewhere();
  };
  EXPECT_EQ(Read(), L"a\r\nb\r\n・・・中断・・・");
  EXPECT_EQ(target_.method, L"TCM_GETITEM");
  EXPECT_EQ(target_.messages.Count(kTab), 2);
}

TEST_F(TabControlItemsTest, TargetsWithoutMemoryForUsGiveNothing) {
  tabs_ = {L"a"};
  for (const int blocks : {0, 1}) {
    target_.memory.mostBlocks = blocks;
    EXPECT_EQ(Read(), L"");
  }
  target_.memory.opens = false;
  EXPECT_EQ(Read(), L"");
  EXPECT_EQ(target_.method, L"(untouched)");
  EXPECT_EQ(target_.messages.Count(kTab), 0);
}

TEST_F(TabControlItemsTest, ATargetThatEndsMeanwhileLeavesWhatWasRead) {
  tabs_ = {L"a", L"b"};
  target_.capture.onYield = [&] { target_.memory.lost = true; };
  EXPECT_EQ(Read(), L"a\r\n");
  EXPECT_EQ(target_.method, L"(untouched)");
}

TEST_F(TabControlItemsTest, TheOlderFamilyUsesSharedBlocks) {
  target_.memory.platform = 1;
  tabs_ = {L"a", L"b"};
  EXPECT_EQ(Read(), L"a\r\nb\r\n");
  EXPECT_EQ(target_.memory.calls[0], "OpenFileMapping 28 f001f 0");
  EXPECT_EQ(target_.memory.calls[4], "OpenFileMapping 256 f001f 0");
}

TEST_F(TabControlItemsTest, AHugeNumberOfTabsIsNotBelieved) {
  count_ = INT32_MAX;
  tabs_ = {L"a"};
  Read();
  EXPECT_EQ(target_.capture.yields, 65536);
}

}  // namespace
}  // namespace extract
