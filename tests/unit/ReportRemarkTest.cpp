// What a report says about what it could not show, and windows that hang.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FakeReaders.h"
#include "capture/CaptureWords.h"
#include "report/Remark.h"

namespace capture {
namespace {

using testing::Contains;
using testing::Each;
using testing::Not;

class ReportRemarkTest : public ReportComposerTest {
 protected:
  ReportRemarkTest() { fake_.view.texts[ViewText::lblMsg] = kCapturing; }
  std::wstring Remark() {
    Compose();
    return Text(ViewText::lblMsg);
  }
};

TEST_F(ReportRemarkTest, AWindowWithItsTextNeedsNone) {
  EXPECT_EQ(Remark(), kCapturing);
  readers_.pointText.clear();
  EXPECT_EQ(Remark(), kCapturing);  // the list has texts
}

TEST_F(ReportRemarkTest, WithoutATextAtThePointOrInTheControl) {
  readers_.pointText.clear();
  readers_.listText = L"% 取得エラー！ %";
  EXPECT_EQ(Remark(), L"ここに文字列はありません");
}

TEST_F(ReportRemarkTest, AProgramOfAnAdministrator) {
  readers_.outOfReach = true;
  EXPECT_EQ(Remark(), kCapturing);
  readers_.pointText.clear();
  readers_.listText.clear();
  EXPECT_EQ(Remark(), L"管理者として実行中のため読み取れません");
}

TEST_F(ReportRemarkTest, ATextOfWhichOnlyTheStartIsShown) {
  readers_.pointText = std::wstring(4095, L'x');
  readers_.pointWhole = 6437;
  EXPECT_EQ(Remark(), L"全6437文字中4095文字：[設定]→[省略せずに読む]");
}

TEST_F(ReportRemarkTest, AListThatEndsAtTheMaximum) {
  readers_.restOmitted = true;
  EXPECT_EQ(Remark(), L"一覧は最大数まで：[設定]→[MSAA] …Child最大取得個数");
}

TEST_F(ReportRemarkTest, WhatAReaderSaidStays) {
  readers_.message = L"GetElByPos:Generate Html-DOC failed";
  readers_.pointText.clear();
  readers_.listText.clear();
  EXPECT_EQ(Remark(), readers_.message);
}

TEST_F(ReportRemarkTest, APageIsAText) {
  readers_.className = L"Internet Explorer_Server";
  readers_.pointText.clear();
  readers_.hasPage = true;
  EXPECT_EQ(Remark(), kCapturing);
  readers_.hasPage = false;
  EXPECT_EQ(Remark(), L"ここに文字列はありません");
}

// Everything that would send a message to the window is left out; what the system knows is shown.
TEST_F(ReportRemarkTest, AHungWindowIsAskedForNothing) {
  readers_.hung = true;
  for (const wchar_t* const className :
       {L"Button", L"Internet Explorer_Server", L"SysListView32"}) {
    readers_.className = className;
    for (const std::int32_t fromHwnd : {0, 1}) {
      fake_.settings.fromHwnd = fromHwnd;
      fake_.trace.clear();
      fake_.view.texts[ViewText::lblMsg] = kCapturing;
      EXPECT_EQ(Remark(), L"応答していないため読み取っていません");
      for (const char* const read :
           {"point", "name of window", "control", "page", "accessible", "status"}) {
        EXPECT_THAT(fake_.trace, Not(Contains(read)));
      }
      EXPECT_THAT(fake_.trace, Contains("facts"));
      EXPECT_THAT(fake_.trace, Contains("information"));
      EXPECT_EQ(Text(ViewText::txthWnd), L"77");
      EXPECT_EQ(Text(ViewText::txtWin0), className);
    }
  }
}

TEST_F(ReportRemarkTest, OfAHungWindowNothingOlderIsShown) {
  Compose();
  fake_.view.texts[ViewText::lblMsg] = kCapturing;
  readers_.hung = true;
  fake_.settings.detail = 1;
  Compose();
  for (const ViewText part :
       {ViewText::txtWin1, ViewText::txtWin2, ViewText::txtWin3, ViewText::txtStatus,
        ViewText::lblTextKind, ViewText::lblListKind, ViewText::txtCount, ViewText::TopPane}) {
    EXPECT_EQ(Text(part), L"");
  }
  EXPECT_TRUE(Text(ViewText::BottomPane).starts_with(L"ウィンドウ情報\r\n"));
}

TEST_F(ReportRemarkTest, WhenItWakesTheNextReportReadsIt) {
  readers_.hung = true;
  Compose();
  readers_.hung = false;
  fake_.view.texts[ViewText::lblMsg] = kCapturing;
  EXPECT_EQ(Remark(), kCapturing);
  EXPECT_EQ(Text(ViewText::txtWin3), L"a\nb\r\nc");
}

// The readers of the text, the list and the object all speak of the window that is meant.
TEST_F(ReportRemarkTest, ReadersGetTheWindowThatIsMeant) {
  fake_.state.GivenWindow = WindowNumber(77);
  Compose();
  EXPECT_THAT(readers_.meantWindows, Each(nullptr));
  EXPECT_EQ(readers_.meantWindows.size(), 3U);
  readers_.meantWindows.clear();
  fake_.state.GivenWindow = WindowNumber(76);
  Compose();
  EXPECT_THAT(readers_.meantWindows, Each(WindowNumber(77)));
  EXPECT_EQ(readers_.meantWindows.size(), 3U);
}

}  // namespace
}  // namespace capture
