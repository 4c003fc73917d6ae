#include "extract/TreeViewItems.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <map>

#include "../ReadItems.h"
#include "FakeRecords.h"

namespace extract {
namespace {

using testing::ElementsAre;
using testing::EndsWith;

constexpr UINT kNext = 0x110A;
constexpr UINT kItem = 0x113E;

struct Node {
  std::wstring text;
  std::uint32_t child = 0;
  std::uint32_t next = 0;
};

class TreeViewItemsTest : public testing::TestWithParam<bool> {
 protected:
  TreeViewItemsTest() {
    if (GetParam()) target_.memory.Be64BitSystem(true);
    target_.messages.answer = [this](UINT message, WPARAM which, LPARAM parameter) {
      return static_cast<std::int32_t>(Answer(message, which, parameter));
    };
  }

  std::uint32_t Answer(UINT message, WPARAM which, LPARAM parameter) {
    const auto item = static_cast<std::uint32_t>(parameter);
    if (message == kNext) {
      if (which == 0) return root_;
      EXPECT_TRUE(nodes_.contains(item)) << item;
      return which == 4 ? nodes_[item].child : nodes_[item].next;
    }
    if (message != kItem) return 0;
    const FakeRecord record(parameter,
                            {GetParam() ? 24U : 16U, GetParam() ? 32U : 20U, GetParam()});
    EXPECT_EQ(record.Get<std::uint32_t>(0), 0x11U);
    const auto named = record.Get<std::uint32_t>(GetParam() ? 8 : 4);
    EXPECT_TRUE(nodes_.contains(named)) << named;
    EXPECT_EQ(GetParam() ? record.Get<std::uint32_t>(12) : 0U, 0U);
    record.Give(nodes_[named].text);
    return 1;
  }

  // Items live at addresses, which a 64-bit target's must be readable.
  std::uint32_t At(std::size_t index) const {
    return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(&places_[index]));
  }
  // fruit(apple, citrus(orange)), bread
  void Plant() {
    root_ = At(0);
    nodes_ = {{At(0), {L"果物", At(1), At(4)}},
              {At(1), {L"林檎", 0, At(2)}},
              {At(2), {L"柑橘", At(3), 0}},
              {At(3), {L"蜜柑", 0, 0}},
              {At(4), {L"麺麭", 0, 0}}};
  }

  std::wstring Read(bool indented = true, std::int32_t most = 50) {
    return TextOf(
        [&](platform::ItemSink& sink) {
          return GetTreeViewItem(target_.hwnd, target_.capture.Session(), sink, {indented, most},
                                 target_.Access());
        },
        target_.method);
  }

  char places_[16] = {};
  std::uint32_t root_ = 0;
  std::map<std::uint32_t, Node> nodes_;
  FakeTarget target_;
};

INSTANTIATE_TEST_SUITE_P(Bitness, TreeViewItemsTest, testing::Bool(),
                         [](const auto& is64) { return is64.param ? "Target64" : "Target32"; });

TEST_P(TreeViewItemsTest, TheWholeTreeIndentedByLevels) {
  Plant();
  EXPECT_EQ(Read(), L"果物\r\n\t林檎\r\n\t柑橘\r\n\t\t蜜柑\r\n麺麭\r\n");
  EXPECT_EQ(target_.method, L"TVM_GETITEMW");
  EXPECT_THAT(target_.capture.progress, ElementsAre(L"1", L"2", L"3", L"4", L"5"));
}

TEST_P(TreeViewItemsTest, OrNotIndented) {
  Plant();
  EXPECT_EQ(Read(false), L"果物\r\n林檎\r\n柑橘\r\n蜜柑\r\n麺麭\r\n");
}

TEST_P(TreeViewItemsTest, NamesAreCutAsInListings) {
  root_ = At(0);
  nodes_ = {{At(0), {std::wstring(2000, L'長'), 0, 0}}};
  EXPECT_EQ(Read(true, 5), L"長長長長長.......\r\n");
  EXPECT_EQ(Read(true, 2000), std::wstring(2000, L'長') + L"\r\n");
}

TEST_P(TreeViewItemsTest, AnEmptyTreeGivesNothing) {
  EXPECT_EQ(Read(), L"");
  EXPECT_EQ(target_.method, L"(untouched)");
}

TEST_P(TreeViewItemsTest, StopsBeforeTheNextItemWhenThePointerLeavesOrTheCaptureEnds) {
  Plant();
  target_.capture.moveOnAfter = 2;
  EXPECT_EQ(Read(), L"果物\r\n\t林檎\r\n・・・中断・・・");
}

TEST_P(TreeViewItemsTest, StopsWhenTheCaptureEnds) {
  Plant();
  target_.capture.endAfter = 1;
  EXPECT_EQ(Read(), L"果物\r\n・・・中断・・・");
}

TEST_P(TreeViewItemsTest, SiblingsInACircleEnd) {
  root_ = At(0);
  nodes_ = {{At(0), {L"a", 0, At(1)}}, {At(1), {L"b", 0, At(0)}}};
  const std::wstring text = Read();
  EXPECT_EQ(std::ranges::count(text, L'\n'), 65'536);
  EXPECT_THAT(text, EndsWith(L"b\r\n・・・中断・・・"));
}

TEST_P(TreeViewItemsTest, ChildrenInACircleEndAtALevel) {
  root_ = At(0);
  nodes_ = {{At(0), {L"a", At(0), 0}}};
  const std::wstring text = Read(false);
  EXPECT_EQ(std::ranges::count(text, L'\n'), 65);
}

// Answers come in 32 bits. An item that lives elsewhere must not be sent to the control.
TEST_P(TreeViewItemsTest, ItemsOfA64BitTargetThatNoMessageCanNameAreNotAskedFor) {
  if (!GetParam()) return;
  root_ = 0x9000'0000;
  EXPECT_EQ(Read(), L"");
  EXPECT_EQ(target_.method, L"(untouched)");
  EXPECT_EQ(target_.messages.Count(kItem), 0);
  EXPECT_EQ(target_.messages.Count(kNext), 1);

  root_ = At(0);
  nodes_ = {{At(0), {L"a", 0, 0x8000'0000}}};
  EXPECT_EQ(Read(), L"a\r\n・・・中断・・・");
  target_.memory.lost = true;
  EXPECT_EQ(Read(), L"");
}

TEST_P(TreeViewItemsTest, TheBlockIsReallyReleased) {
  Plant();
  Read();
  EXPECT_THAT(target_.memory.calls, testing::Contains("VirtualFreeEx 51 0 0 8000"));
}

}  // namespace
}  // namespace extract
