#include "capture/PaneCopy.h"

#include <gtest/gtest.h>

#include "FakeCapture.h"

namespace capture {
namespace {

class PaneCopyTest : public testing::Test {
 protected:
  PaneCopyTest() {
    fake_.view.texts[ViewText::TopPane] = L"上の文字";
    fake_.view.texts[ViewText::BottomPane] = L"下の文字";
  }
  std::wstring Message() { return fake_.view.texts[ViewText::lblMsg]; }

  FakeCapture fake_;
};

TEST_F(PaneCopyTest, SaysWhichPaneIsOnTheClipboard) {
  CopyTopPane(fake_.Context());
  EXPECT_EQ(fake_.system.clipboard, L"上の文字");
  EXPECT_EQ(Message(), L"上段 クリップボード転送完了");
  CopyBottomPane(fake_.Context());
  EXPECT_EQ(fake_.system.clipboard, L"下の文字");
  EXPECT_EQ(Message(), L"下段 クリップボード転送完了");
  CopyText(fake_.Context(), L"箱", L"テキスト転送完了！");
  EXPECT_EQ(fake_.system.clipboard, L"箱");
  EXPECT_EQ(Message(), L"テキスト転送完了！");
}

TEST_F(PaneCopyTest, ReportsThatTheClipboardCouldNotBeOpened) {
  fake_.system.clipboardIsHeld = true;
  for (const auto copy : {CopyTopPane, CopyBottomPane}) {
    fake_.view.texts[ViewText::lblMsg] = L"Go";
    copy(fake_.Context());
    EXPECT_EQ(Message(), L"クリップボードに転送できませんでした");
  }
  EXPECT_EQ(fake_.system.clipboard, L"(before)");
}

}  // namespace
}  // namespace capture
