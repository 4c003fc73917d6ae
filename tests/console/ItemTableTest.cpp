#include "console/ItemTable.h"

#include <gtest/gtest.h>

namespace console {
namespace {

TEST(ItemTableTest, CellsMakeRows) {
  ItemTable table(10);
  table.Cell(L"a");
  table.Cell(L"");
  table.EndRow();
  PutItem(table, L"b\tc");
  EXPECT_EQ(table.Rows(), (std::vector<Row>{{L"a", L""}, {L"b\tc"}}));
  EXPECT_TRUE(table.HasText());
  EXPECT_TRUE(table.IsComplete());
  EXPECT_EQ(table.Size(), 7U);
}

TEST(ItemTableTest, EmptyCellsAreNoText) {
  ItemTable table(10);
  PutItem(table, L"");
  EXPECT_FALSE(table.HasText());
  EXPECT_EQ(table.Rows().size(), 1U);
}

TEST(ItemTableTest, RowsBeyondTheMostAreDroppedAndMissed) {
  ItemTable table(2);
  PutItem(table, L"1");
  PutItem(table, L"2");
  EXPECT_FALSE(table.IsFull());
  EXPECT_TRUE(table.IsComplete());
  PutItem(table, L"3");
  EXPECT_TRUE(table.IsFull());
  EXPECT_FALSE(table.IsComplete());
  EXPECT_EQ(table.Rows().size(), 2U);
}

TEST(ItemTableTest, AnEndingOrAStartIsNotComplete) {
  ItemTable ended(2);
  ended.EndWith(platform::Ending::kInterrupted);
  EXPECT_FALSE(ended.IsComplete());
  ItemTable started(2);
  started.IsStartOf(5000);
  EXPECT_FALSE(started.IsComplete());
}

TEST(ItemTableTest, NothingRemainsAfterDiscard) {
  ItemTable table(1);
  table.Text(L"words");
  table.Cell(L"half a row");
  table.EndWith(platform::Ending::kNoObject);
  table.Discard();
  EXPECT_TRUE(table.Words().empty());
  EXPECT_TRUE(table.IsComplete());
  EXPECT_FALSE(table.HasText());
  EXPECT_EQ(table.Size(), 0U);
  PutItem(table, L"new");
  EXPECT_EQ(table.Rows(), (std::vector<Row>{{L"new"}}));
}

}  // namespace
}  // namespace console
