// The grip between the two panes.
#include <windows.h>

#include <gtest/gtest.h>

#include "LayoutCheck.h"
#include "SettingsText.h"
#include "driver/GuiTest.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

constexpr char kConf[] =
    "form left = 60\nform top = 60\nform right = 560\nform bottom = 760\ntop height = 3000\n";
constexpr LONG kLimit = 1400 / 15;

class SplitterTest : public GuiTest {
 protected:
  // The y coordinate inside the window's inner area.
  static LONG TopInside(const Program& program, const Control& control) {
    return control.Rectangle().top - InnerArea(program.Window()).top;
  }
};

TEST_F(SplitterTest, DragMovesTheBorderBetweenThePanes) {
  Program program({.conf = kConf});
  const LONG before = program.TopPane().Size().cy;
  const POINT grip = program[ui::imgSplitter].Center();
  const LONG gripTop = TopInside(program, program[ui::imgSplitter]);
  constexpr LONG kWay = 70;
  pointer::Drag(grip, {grip.x, grip.y + kWay}, [&] {
    const Control bar = program[ui::picSplitter];
    EXPECT_TRUE(WaitFor("the bar is shown at the pointer", [&](std::string& seen) {
      seen = std::to_string(TopInside(program, bar));
      // The bar's top is the grip's top plus the pointer's place inside the grip.
      const LONG inGrip = grip.y - program[ui::imgSplitter].Rectangle().top;
      return bar.IsVisible() && TopInside(program, bar) == gripTop + inGrip + kWay;
    }));
    EXPECT_EQ(bar.Rectangle().left, program[ui::imgSplitter].Rectangle().left);
    EXPECT_EQ(bar.Size().cx, program[ui::imgSplitter].Size().cx);
    EXPECT_NEAR(bar.Size().cy, program[ui::imgSplitter].Size().cy / 2, 1);
  });
  EXPECT_TRUE(WaitFor("the bar is hidden and the pane higher", [&](std::string& seen) {
    seen = std::to_string(program.TopPane().Size().cy);
    return !program[ui::picSplitter].IsVisible() && program.TopPane().Size().cy > before;
  }));
  const LONG after = program.TopPane().Size().cy;
  EXPECT_NEAR(after, before + kWay, program[ui::imgSplitter].Size().cy);
  EXPECT_EQ(program[ui::frCenter].Rectangle().top, program.TopPane().Rectangle().bottom);
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "top height"), std::to_string(after * 15));
}

TEST_F(SplitterTest, PressAloneShowsTheBarOnTheGrip) {
  const Program program({.conf = kConf});
  EXPECT_FALSE(program[ui::picSplitter].IsVisible());
  const RECT grip = program[ui::imgSplitter].Rectangle();
  const POINT middle = {(grip.left + grip.right) / 2, grip.top};
  pointer::Press(middle);
  EXPECT_TRUE(WaitFor("the bar is shown",
                      [&](std::string&) { return program[ui::picSplitter].IsVisible(); }));
  EXPECT_EQ(program[ui::picSplitter].Rectangle().left, grip.left);
  EXPECT_EQ(program[ui::picSplitter].Rectangle().top, grip.top);
  pointer::Release(middle);
  EXPECT_TRUE(WaitFor("the bar is hidden",
                      [&](std::string&) { return !program[ui::picSplitter].IsVisible(); }));
}

TEST_F(SplitterTest, BarStopsAtTheUpperLimit) {
  const Program program({.conf = kConf});
  const POINT grip = program[ui::imgSplitter].Center();
  pointer::Drag(grip, {grip.x, InnerArea(program.Window()).top + 5}, [&] {
    EXPECT_TRUE(WaitFor("the bar stops", [&](std::string& seen) {
      const LONG top = TopInside(program, program[ui::picSplitter]);
      seen = std::to_string(top);
      return top == kLimit;
    }));
  });
}

TEST_F(SplitterTest, BarStopsAtTheLowerLimit) {
  const Program program({.conf = kConf});
  const RECT inner = InnerArea(program.Window());
  const POINT grip = program[ui::imgSplitter].Center();
  pointer::Drag(grip, {grip.x, inner.bottom - 10}, [&] {
    EXPECT_TRUE(WaitFor("the bar stops", [&](std::string& seen) {
      const LONG top = TopInside(program, program[ui::picSplitter]);
      seen = std::to_string(top);
      return std::abs(top - (inner.bottom - inner.top - kLimit)) <= 1;
    }));
  });
}

TEST_F(SplitterTest, ReleaseBeyondALimitLeavesThePaneAtTheLimit) {
  Program program({.conf = kConf});
  const RECT inner = InnerArea(program.Window());
  const LONG height = inner.bottom - inner.top;
  const auto endsAt = [&](LONG expected) {
    return WaitFor("the pane ends at the limit", [&](std::string& seen) {
      const LONG top = TopInside(program, program[ui::imgSplitter]);
      seen = std::to_string(top);
      return std::abs(top - expected) <= 1 && !program[ui::picSplitter].IsVisible();
    });
  };
  POINT grip = program[ui::imgSplitter].Center();
  pointer::Drag(grip, {grip.x, inner.top + 5});
  EXPECT_TRUE(endsAt(kLimit));
  grip = program[ui::imgSplitter].Center();
  pointer::Drag(grip, {grip.x, inner.bottom - 10});
  EXPECT_TRUE(endsAt(height - kLimit));
  const std::string paneHeight = std::to_string(program.TopPane().Size().cy * 15);
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "top height"), paneHeight);
}

TEST_F(SplitterTest, MovingOverTheGripWithoutPressingChangesNothing) {
  const Program program({.conf = kConf});
  const LONG before = program.TopPane().Size().cy;
  const POINT grip = program[ui::imgSplitter].Center();
  for (const LONG x : {-30, 0, 30}) pointer::MoveTo({grip.x + x, grip.y});
  EXPECT_TRUE(Stays(
      "no bar shows", [&](std::string&) { return !program[ui::picSplitter].IsVisible(); },
      Milliseconds(200)));
  EXPECT_EQ(program.TopPane().Size().cy, before);
}

}  // namespace
}  // namespace gui
