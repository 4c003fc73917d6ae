#include "platform/SecondSink.h"

#include <gtest/gtest.h>

#include "platform/TextSink.h"

namespace platform {
namespace {

class SecondSinkTest : public testing::Test {
 protected:
  SecondSinkTest() { first_.EndWith(Ending::kNoObject); }

  TextSink first_;
  SecondSink second_{first_};
};

TEST_F(SecondSinkTest, WithoutATextTheFirstWayStands) {
  second_.Cell({});
  second_.Cell({});
  second_.EndRow();
  second_.Text({});
  second_.EndWith(Ending::kInterrupted);
  second_.IsStartOf(9);
  EXPECT_FALSE(second_.HasText());
  EXPECT_EQ(second_.Size(), 0U);
  EXPECT_EQ(first_.Whole(), 0U);
  EXPECT_EQ(first_.Ended(), Ending::kNoObject);
  EXPECT_EQ(first_.Take(), L"% 取得エラー！ %");
}

TEST_F(SecondSinkTest, TheFirstTextReplacesWhatTheFirstWayPutIn) {
  second_.Cell({});
  second_.Cell({});
  second_.EndRow();
  second_.Cell({});
  second_.Cell(L"b");
  second_.EndRow();
  second_.Cell({});
  second_.EndRow();
  second_.IsStartOf(9);
  second_.EndWith(Ending::kInterrupted);
  EXPECT_TRUE(second_.HasText());
  EXPECT_EQ(second_.Size(), first_.Size());
  EXPECT_EQ(first_.Whole(), 9U);
  EXPECT_EQ(first_.Ended(), Ending::kInterrupted);
  EXPECT_EQ(first_.Take(), L"\t\r\n\tb\r\n\r\n・・・中断・・・");
}

TEST_F(SecondSinkTest, ATextThatIsNoItemReplacesToo) {
  second_.Text(L"全部");
  EXPECT_EQ(first_.Take(), L"全部");
}

TEST_F(SecondSinkTest, DiscardingStartsAnew) {
  second_.Cell(L"a");
  second_.Discard();
  EXPECT_FALSE(second_.HasText());
  second_.EndRow();
  EXPECT_EQ(first_.Size(), 0U);
  second_.Cell(L"b");
  EXPECT_EQ(first_.Take(), L"\r\nb");
}

}  // namespace
}  // namespace platform
