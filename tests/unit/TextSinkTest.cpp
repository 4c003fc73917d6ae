#include "platform/TextSink.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

TEST(TextSinkTest, CellsAreSeparatedByTabsAndRowsAreLines) {
  TextSink sink;
  sink.Cell(L"a");
  sink.Cell({});
  sink.Cell(L"c");
  sink.EndRow();
  sink.Cell(L"d");
  sink.EndRow();
  EXPECT_EQ(sink.Take(), L"a\t\tc\r\nd\r\n");
}

TEST(TextSinkTest, OnlyATextCountsAsOne) {
  TextSink sink;
  sink.Cell({});
  sink.EndRow();
  sink.EndWith(Ending::kRestOmitted);
  EXPECT_FALSE(sink.HasText());
  sink.Text(L"a");
  sink.Text({});
  EXPECT_TRUE(sink.HasText());
}

TEST(TextSinkTest, DiscardingAndTakingStartAnew) {
  TextSink sink;
  for (const bool take : {false, true}) {
    sink.Cell(L"a");
    sink.IsStartOf(9);
    sink.EndWith(Ending::kInterrupted);
    take ? static_cast<void>(sink.Take()) : sink.Discard();
    EXPECT_EQ(sink.Size(), 0U);
    EXPECT_FALSE(sink.HasText());
    EXPECT_EQ(sink.Whole(), 0U);
    EXPECT_FALSE(sink.Ended());
    sink.Cell(L"b");
    EXPECT_EQ(sink.Take(), L"b");
  }
}

}  // namespace
}  // namespace platform
