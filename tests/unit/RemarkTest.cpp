#include "report/Remark.h"

#include <gtest/gtest.h>

namespace report {
namespace {

TEST(RemarkTest, NothingMissingNeedsNoWords) { EXPECT_EQ(RemarkText({}), L""); }

TEST(RemarkTest, EachThingHasItsSentence) {
  EXPECT_EQ(RemarkText({.hung = true}), L"応答していないため読み取っていません");
  EXPECT_EQ(RemarkText({.noText = true, .outOfReach = true}),
            L"管理者として実行中のため読み取れません");
  EXPECT_EQ(RemarkText({.noText = true}), L"ここに文字列はありません");
  EXPECT_EQ(RemarkText({.whole = 6437, .shown = 4095}),
            L"全6437文字中4095文字：[設定]→[省略せずに読む]");
  EXPECT_EQ(RemarkText({.listOmitted = true}),
            L"一覧は最大数まで：[設定]→[MSAA] …Child最大取得個数");
}

TEST(RemarkTest, TheGravestIsSaid) {
  Missing missing{.hung = true,
                  .noText = true,
                  .outOfReach = true,
                  .whole = 5000,
                  .shown = 4095,
                  .listOmitted = true};
  EXPECT_EQ(RemarkText(missing), RemarkText({.hung = true}));
  missing.hung = false;
  EXPECT_EQ(RemarkText(missing), RemarkText({.noText = true, .outOfReach = true}));
  missing.outOfReach = false;
  EXPECT_EQ(RemarkText(missing), RemarkText({.noText = true}));
  missing.noText = false;
  EXPECT_EQ(RemarkText(missing), RemarkText({.whole = 5000, .shown = 4095}));
}

// Where there is a text, nobody asks whose rights it took.
TEST(RemarkTest, RightsMatterOnlyWithoutAText) { EXPECT_EQ(RemarkText({.outOfReach = true}), L""); }

TEST(RemarkTest, LineEndsAndMarksAreNoText) {
  for (const wchar_t* const list : {L"", L"\r\n", L"\t\t\r\n\t\r\n", L"% 取得エラー！ %"}) {
    EXPECT_FALSE(HoldsText(list)) << list;
  }
  for (const wchar_t* const list : {L"a", L" ", L"\r\n\t.\r\n", L"% 取得エラー！ %\r\n"}) {
    EXPECT_TRUE(HoldsText(list)) << list;
  }
}

}  // namespace
}  // namespace report
