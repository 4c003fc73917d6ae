// What happens to the texts when a capture ends.
#include <windows.h>

#include <gtest/gtest.h>

#include "driver/Clipboard.h"
#include "driver/GuiTest.h"
#include "driver/Keys.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Target.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

class ClipboardTest : public GuiTest {
 protected:
  void SetUp() override {
    GuiTest::SetUp();
    if (!IsSkipped()) clipboard::SetText("元のまま");
  }

  // Captures the fixture's static and stops with the hot key, so that the pointer stays there.
  static void CaptureAndStop(const Program& program, const Fixture& fixture) {
    program.StartCapture();
    pointer::MoveTo(fixture["static"].Center());
    Require(program.TopPane().TextBecomes("拾った文字"));
    Require(program[ui::lblMsg].TextBecomes(""));
    keys::Stroke({VK_ESCAPE});
    Require(program[ui::cmdGo].TextBecomes("開始"));
  }

  Fixture fixture_{"title=t static=拾った文字"};
};

TEST_F(ClipboardTest, ModeNoneAsksToSelect) {
  const Program program({.conf = "clipboard = 0\n"});
  CaptureAndStop(program, fixture_);
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes("テキスト選択"));
  EXPECT_EQ(clipboard::Text(), "元のまま");
}

TEST_F(ClipboardTest, ModeClickAsksToClick) {
  const Program program({.conf = "clipboard = 1\n"});
  CaptureAndStop(program, fixture_);
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes("クリックでクリップボード転送"));
  EXPECT_EQ(clipboard::Text(), "元のまま");
}

TEST_F(ClipboardTest, ModeTopCopiesTheTopPane) {
  const Program program({.conf = "clipboard = 2\n"});
  CaptureAndStop(program, fixture_);
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes("上段 クリップボード転送完了"));
  EXPECT_EQ(clipboard::Text(), "拾った文字");
}

// Another program keeps the clipboard open.
class HeldClipboardTest : public ClipboardTest {
 protected:
  HeldClipboardTest()
      : holder_(CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr,
                                nullptr)) {}
  ~HeldClipboardTest() override {
    CloseClipboard();
    DestroyWindow(holder_);
  }
  void Hold() const {
    Require(WaitFor("the clipboard is held",
                    [&](std::string&) { return OpenClipboard(holder_) != FALSE; }));
  }
  static constexpr char kFailed[] = "クリップボードに転送できませんでした";

 private:
  HWND holder_;
};

TEST_F(HeldClipboardTest, TheEndOfACaptureReportsIt) {
  const Program program({.conf = "clipboard = 2\n"});
  Hold();
  CaptureAndStop(program, fixture_);
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes(kFailed));
  CloseClipboard();
  EXPECT_EQ(clipboard::Text(), "元のまま");
}

TEST_F(HeldClipboardTest, AClickReportsIt) {
  const Program program({.conf = "clipboard = 1\n"});
  CaptureAndStop(program, fixture_);
  Hold();
  program.TopPane().Click();
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes(kFailed));
  CloseClipboard();
  EXPECT_EQ(clipboard::Text(), "元のまま");
  program.TopPane().Click();
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes("テキスト転送完了！"));
  EXPECT_EQ(clipboard::Text(), "拾った文字");
}

TEST_F(ClipboardTest, ModeBottomCopiesTheBottomPane) {
  const Program program({.conf = "clipboard = 3\ndetail = 1\n"});
  program.StartCapture();
  pointer::MoveTo(fixture_["static"].Center());
  ASSERT_TRUE(program[ui::txthWnd].TextBecomes(fixture_["static"].HandleText()));
  ASSERT_TRUE(program[ui::lblMsg].TextBecomes(""));
  const std::string bottom = program.BottomPane().Text();
  ASSERT_NE(bottom, "");
  keys::Stroke({VK_ESCAPE});
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes("下段 クリップボード転送完了"));
  EXPECT_EQ(clipboard::Text(), bottom);
}

TEST_F(ClipboardTest, UnknownModeDoesNothing) {
  const Program program({.conf = "clipboard = 4\n"});
  CaptureAndStop(program, fixture_);
  EXPECT_TRUE(program[ui::lblMsg].TextStays("", Milliseconds(200)));
  EXPECT_EQ(clipboard::Text(), "元のまま");
}

}  // namespace
}  // namespace gui
