// The small switches on the main window itself.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstdio>

#include "SettingsText.h"
#include "driver/GuiTest.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Screen.h"
#include "driver/Target.h"
#include "driver/Windows.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

constexpr COLORREF kClientColor = RGB(128, 128, 255);
constexpr COLORREF kScreenColor = RGB(128, 128, 128);

class TogglesTest : public GuiTest {
 protected:
  static testing::AssertionResult PositionIsColoured(const Program& program, COLORREF color) {
    return WaitFor("the position has its colour", [&](std::string&) {
      const Picture label = Picture::Of(program[ui::lblMousePos].Rectangle());
      const COLORREF other = color == kClientColor ? kScreenColor : kClientColor;
      return label.Count(color) > 0 && label.Count(other) == 0;
    });
  }

  // Waits for the tool tip that appears while the pointer rests over the control.
  static testing::AssertionResult TipBecomes(const Program& program, const Control& control,
                                             std::string_view expected) {
    const POINT center = control.Center();
    pointer::MoveTo({center.x - 4, center.y});
    pointer::MoveTo(center);
    return TextBecomes("the tool tip", expected, [&]() -> std::string {
      for (HWND window : VisibleWindows(program.Process().Id())) {
        const Control tip(window, "tool tip");
        if (tip.ClassName() == "tooltips_class32") return tip.Text();
      }
      return "(none shown)";
    });
  }
};

TEST_F(TogglesTest, PositionModeChangesWithADoubleClick) {
  Program program;
  program.StartCapture();
  program[ui::lblMousePos].DoubleClick();
  EXPECT_TRUE(PositionIsColoured(program, kClientColor));
  program[ui::lblMousePos].DoubleClick();
  EXPECT_TRUE(PositionIsColoured(program, kScreenColor));
  program[ui::lblMousePos].DoubleClick();
  EXPECT_TRUE(PositionIsColoured(program, kClientColor));
  program.StopCapture();
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "mous pos"), "client");
}

TEST_F(TogglesTest, PositionModeInOtherCaseBecomesScreen) {
  Program program({.conf = "mous pos = Client\n"});
  program.StartCapture();
  program[ui::lblMousePos].DoubleClick();
  EXPECT_TRUE(PositionIsColoured(program, kScreenColor));
  program.StopCapture();
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "mous pos"), "screen");
}

TEST_F(TogglesTest, TipOfThePositionNamesItsMode) {
  const Program program;
  program[ui::lblMousePos].DoubleClick();
  EXPECT_TRUE(
      TipBecomes(program, program[ui::lblMousePos],
                 "マウスポインタ（クライアント）座標  ダブルクリックでスクリーン座標に切り替え"));
  program[ui::lblMousePos].DoubleClick();
  EXPECT_TRUE(
      TipBecomes(program, program[ui::lblMousePos],
                 "マウスポインタ（スクリーン）座標  ダブルクリックでクライアント座標に切り替え"));
}

TEST_F(TogglesTest, WrapBoxSendsTheReportsOfARunningCaptureToTheOtherPanes) {
  const Fixture fixture("title=t static=名札 leaf=葉 button=釦");
  const Program program({.conf = "turn back = 0\n"});
  program.StartCapture();
  const auto expectReport = [&](const char* kind, const char* text, int member) {
    pointer::MoveTo(fixture[kind].Center());
    EXPECT_TRUE(program[ui::txtWinTextT0 + member].TextBecomes(text)) << kind;
    EXPECT_TRUE(program[ui::txtWinTextB0 + member].TextBecomes(text)) << kind;
    ASSERT_TRUE(program[ui::lblMsg].TextBecomes("")) << kind;
    EXPECT_NE(program[ui::txtWinTextT1 - member].Text(), text) << kind;
    EXPECT_NE(program[ui::txtWinTextB1 - member].Text(), text) << kind;
  };
  expectReport("static", "名札", 0);
  program[ui::chkTurnBack].PressButton();
  ASSERT_TRUE(program[ui::txtWinTextT1].TextBecomes("名札"));
  expectReport("leaf", "葉", 1);
  program[ui::chkTurnBack].PressButton();
  ASSERT_TRUE(program[ui::txtWinTextT0].TextBecomes("葉"));
  expectReport("button", "釦", 0);
  EXPECT_TRUE(program.IsCapturing());
}

TEST_F(TogglesTest, TipOfTheButtonNamesItsAction) {
  const Program program;
  program.StartCapture();
  EXPECT_TRUE(TipBecomes(program, program[ui::cmdGo], "取得停止"));
  program.StopCapture();
  EXPECT_TRUE(TipBecomes(program, program[ui::cmdGo], "Velmora列取得開始"));
}

TEST_F(TogglesTest, MessageLineTurnsDebugModeOnAndOff) {
  const Program program({.conf = "hotkey = F2\n"});
  const std::string caption = program.Window().Text();
  program.StartCapture();
  program.StopCapture();
  ASSERT_TRUE(program[ui::lblMsg].TextBecomes("テキスト選択"));
  ASSERT_TRUE(program[ui::lblStatus].TextBecomes("F2で停止"));
  program[ui::lblMsg].DoubleClick();
  EXPECT_TRUE(program.Window().TextBecomes(caption + " - debug"));
  EXPECT_TRUE(program[ui::lblStatus].TextBecomes(""));
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes(""));

  program.StartCapture();
  EXPECT_TRUE(program[ui::lblStatus].TextStays("", Milliseconds(300)));
  program.StopCapture();

  program[ui::lblMsg].DoubleClick();
  EXPECT_TRUE(program.Window().TextBecomes(caption));
  EXPECT_TRUE(program[ui::lblStatus].TextBecomes("F2で停止"));
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes("F2で停止"));
}

TEST_F(TogglesTest, CommandLineDebugModeLeavesTheCaption) {
  const Program program({.arguments = "debug"});
  const std::string caption = program.Window().Text();
  program.StartCapture();
  program.StopCapture();
  EXPECT_EQ(program.Window().Text(), caption);
  // Debug mode is on already, so the double click leaves it.
  program[ui::lblMsg].DoubleClick();
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes("ESCで停止"));
  EXPECT_EQ(program.Window().Text(), caption);
}

TEST_F(TogglesTest, HandleBoxSwitchesBetweenDecimalAndHexadecimal) {
  const Fixture fixture("title=t leaf=葉");
  Program program;
  program.StartCapture();
  pointer::MoveTo(fixture["leaf"].Center());
  const std::string decimal = fixture["leaf"].HandleText();
  ASSERT_TRUE(program[ui::txthWnd].TextBecomes(decimal));
  program[ui::cmdGo].PressButton();
  ASSERT_TRUE(program[ui::cmdGo].TextBecomes("開始"));

  char hexadecimal[16] = {};
  std::snprintf(hexadecimal, sizeof hexadecimal, "%lX", std::stoul(decimal));
  program[ui::txthWnd].DoubleClick();
  EXPECT_TRUE(program[ui::txthWnd].TextBecomes(hexadecimal));
  program[ui::txthWnd].DoubleClick();
  EXPECT_TRUE(program[ui::txthWnd].TextBecomes(decimal));
  program[ui::txthWnd].DoubleClick();
  EXPECT_TRUE(program[ui::txthWnd].TextBecomes(hexadecimal));
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "win handle"), "hex");
}

}  // namespace
}  // namespace gui
