// Windows that the system does not give where the user points at them, and windows that give no
// text.
#include <windows.h>

#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "driver/GuiTest.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Screen.h"
#include "driver/Target.h"
#include "driver/WaitFor.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

constexpr char kConf[] = "form left = 560\nform top = 40\nform right = 1200\nform bottom = 700\n";
constexpr char kDetails[] =
    "detail = 1\nform left = 560\nform top = 40\nform right = 1200\nform bottom = 700\n";

class PointedWindowTest : public GuiTest {
 protected:
  static void PointAt(const Program& program, const Control& target, POINT point) {
    pointer::MoveTo(point);
    Require(program[ui::txthWnd].TextBecomes(target.HandleText()));
  }
};

TEST_F(PointedWindowTest, AControlInAGroupBoxIsReadAndTheFrameWhereItIsEmpty) {
  const Fixture fixture("place=40,40,480,520 group=枠 framed=中身");
  const Program program({.conf = kConf});
  program.StartCapture();
  PointAt(program, fixture["framed"], fixture["framed"].Center());
  EXPECT_TRUE(program.TopPane().TextBecomes("中身"));
  EXPECT_TRUE(program[ui::txtWin0].TextBecomes("Edit"));
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes(""));
  SaveScreenshotWhenPainted("group-box");
  const RECT frame = fixture["group"].Rectangle();
  PointAt(program, fixture["group"], {frame.right - 15, frame.bottom - 8});
  EXPECT_TRUE(program.TopPane().TextBecomes("枠"));
}

TEST_F(PointedWindowTest, TheAccessibleObjectIsThatOfTheControlInTheGroupBox) {
  const Fixture fixture("place=40,40,480,520 group=枠 framed=中身");
  const Program program({.conf = kDetails});
  program.StartCapture();
  PointAt(program, fixture["framed"], fixture["framed"].Center());
  EXPECT_TRUE(WaitFor("the object is reported", [&](std::string& seen) {
    seen = program.TopPane().Text();
    return seen.find("\r\nValue      : 中身\r\nRole       : 42 ") != std::string::npos;
  }));
}

TEST_F(PointedWindowTest, ItemsOfADisabledListInAGroupBoxAreRead) {
  const Fixture fixture("place=40,40,480,520 group=枠 framedlist=2");
  const Program program({.conf = kConf});
  program.StartCapture();
  PointAt(program, fixture["framedlist"], fixture["framedlist"].Center());
  EXPECT_TRUE(WaitFor("the items are listed", [&](std::string& seen) {
    seen = program.BottomPane().Text();
    return seen.starts_with("10000000項") && seen.find("\r\n10000001項") != std::string::npos;
  }));
  EXPECT_TRUE(program[ui::lblListKind].TextBecomes("LB_GETTEXT"));
}

TEST_F(PointedWindowTest, AWindowWithoutATextSaysSo) {
  const Fixture fixture("place=40,40,480,520 blank= button=押す");
  const Program program({.conf = kConf});
  program.StartCapture();
  PointAt(program, fixture["blank"], fixture["blank"].Center());
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes("ここに文字列はありません"));
  SaveScreenshotWhenPainted("no-text");
  PointAt(program, fixture["button"], fixture["button"].Center());
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes(""));
}

// The main window stays usable, the reason is shown, and what the system itself knows is read.
TEST_F(PointedWindowTest, AHungWindowIsAskedForNothingAndReadWhenItWakes) {
  const Fixture fixture("place=40,40,480,520 title=眠る窓 button=押す");
  const Program program({.conf = kConf});
  fixture.Hang(Milliseconds(14'000));
  ASSERT_TRUE(WaitFor(
      "the system knows that it hangs",
      [&](std::string&) { return IsHungAppWindow(fixture["main"].Handle()) != FALSE; },
      Milliseconds(10'000)));
  program.StartCapture();
  pointer::MoveTo(fixture["button"].Center());
  ASSERT_TRUE(program[ui::lblMsg].TextBecomes("応答していないため読み取っていません"));
  EXPECT_TRUE(IsHungAppWindow(fixture["main"].Handle()));
  EXPECT_EQ(program[ui::txthWnd].Text(), fixture["button"].HandleText());
  EXPECT_EQ(program[ui::txtWin0].Text(), "Button");
  EXPECT_EQ(program.TopPane().Text(), "");
  for (int i = 0; i < 20; ++i) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(program[ui::cmdGo].Text(), "停止");
    EXPECT_LT(std::chrono::steady_clock::now() - start, Milliseconds(500));
  }
  SaveScreenshotWhenPainted("hung-window");
  ASSERT_TRUE(WaitFor(
      "it wakes", [&](std::string&) { return !IsHungAppWindow(fixture["main"].Handle()); },
      Milliseconds(20'000)));
  const POINT center = fixture["button"].Center();
  pointer::MoveTo({center.x + 5, center.y});
  EXPECT_TRUE(program.TopPane().TextBecomes("押す"));
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes(""));
}

TEST_F(PointedWindowTest, ALongTextSaysHowMuchIsShownAndIsReadWholeOnRequest) {
  const Fixture fixture("place=40,40,480,520 memo=");
  fixture["memo"].SetText(std::string(6437, 'x'));
  {
    const Program program({.conf = kConf});
    program.StartCapture();
    PointAt(program, fixture["memo"], fixture["memo"].Center());
    EXPECT_TRUE(program.BottomPane().TextBecomes(std::string(4095, 'x')));
    EXPECT_TRUE(program[ui::lblMsg].TextBecomes("全6437文字中4095文字：[設定]→[省略せずに読む]"));
    SaveScreenshotWhenPainted("cut-text");
  }
  const Program program({.conf = std::string(kConf) + "read whole = 1\n"});
  program.StartCapture();
  PointAt(program, fixture["memo"], fixture["memo"].Center());
  EXPECT_TRUE(program.BottomPane().TextBecomes(std::string(6437, 'x')));
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes(""));
}

}  // namespace
}  // namespace gui
