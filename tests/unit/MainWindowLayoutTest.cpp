#include "ui/MainWindowLayout.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <set>

#include "capture/CaptureView.h"
#include "ui/ControlIds.h"
#include "ui/MainWindowControls.h"

namespace ui {
namespace {

constexpr TwipsScale kAt96{15, 15};

struct LaidOut {
  MainWindowGeometry g;
  std::int32_t topHeight;
};

LaidOut LayOut(std::int32_t SW, std::int32_t SH, std::int32_t topHeight = 1200,
               const TwipsScale& scale = kAt96, const MainWindowGeometry& from = DesignGeometry()) {
  LaidOut result{{}, topHeight};
  result.g = Layout(from, {SW, SH, scale}, result.topHeight);
  return result;
}

TEST(LayoutTest, KeepsTheRightEdge) {
  const auto g = LayOut(7000, 6000).g;
  EXPECT_EQ(g.chkAutoStop.Right(), 7000);
  EXPECT_EQ(g.chkTurnBack.Right(), 7000);
  EXPECT_EQ(g.fr_Mous.Right(), 7000);
  EXPECT_EQ(g.fr_Help.Right(), 7000);
}

TEST(LayoutTest, StatusLabelEndsTwoPixelsBeforeThePointerFrame) {
  const auto g = LayOut(7000, 6000).g;
  EXPECT_EQ(g.lblStatus.width, g.fr_Mous.left - g.lblStatus.left - 30);
  const auto wide = LayOut(7000, 6000, 1200, {10, 12}).g;
  EXPECT_EQ(wide.lblStatus.width, wide.fr_Mous.left - wide.lblStatus.left - 20);
}

TEST(LayoutTest, TheFootUsesTheHorizontalFactorForItsMargins) {
  const auto g = LayOut(7000, 6000, 1200, {10, 12}).g;
  EXPECT_EQ(g.fr_Help.top, 6000 - g.fr_Help.height - 50);
  EXPECT_EQ(g.lblMsg.top, g.fr_Help.top + 30);
  EXPECT_EQ(g.lblMsg.width, g.fr_Help.left - g.lblMsg.left);
}

TEST(LayoutTest, TheStatusBoxStandsOneVerticalPixelAboveTheFoot) {
  const auto g = LayOut(7000, 6000, 1200, {10, 12}).g;
  EXPECT_EQ(g.txtStatus.left, 60);
  EXPECT_EQ(g.txtStatus.top, g.fr_Help.top - g.txtStatus.height - 12);
  EXPECT_EQ(g.txtStatus.width, 6940);
}

TEST(LayoutTest, TheTopPaneGetsTheStoredHeightWhenItFits) {
  const auto laid = LayOut(7000, 6000, 2222);
  EXPECT_EQ(laid.g.T.left, 30);
  EXPECT_EQ(laid.g.T.width, 6970);
  EXPECT_EQ(laid.g.T.height, 2222);
  EXPECT_EQ(laid.topHeight, 2222);
}

TEST(LayoutTest, TheTopPaneIsShrunkOnlyWhenItEndsMoreThan120BelowTheWindow) {
  MainWindowGeometry now = DesignGeometry();
  now.T.height = 3000;
  const std::int32_t bottom = now.T.Bottom();
  const auto fits = LayOut(7000, bottom - 120, 3000, kAt96, now);
  EXPECT_EQ(fits.g.T.height, 3000);
  EXPECT_EQ(fits.topHeight, 3000);

  const auto over = LayOut(7000, bottom - 121, 3000, kAt96, now);
  EXPECT_EQ(over.g.T.height, bottom - 121 - now.T.top - 1500);

  const std::int32_t SH = bottom - 135;
  const auto shrunk = LayOut(7000, SH, 3000, kAt96, now);
  EXPECT_EQ(shrunk.g.T.height, SH - now.T.top - 1500);
  EXPECT_EQ(shrunk.topHeight, shrunk.g.T.height);

  // Enlarging the window does not restore the previous height.
  const auto enlarged = LayOut(7000, 9000, shrunk.topHeight, kAt96, shrunk.g);
  EXPECT_EQ(enlarged.g.T.height, shrunk.g.T.height);
}

// A settings file may ask for any height.
TEST(LayoutTest, AHeightBeyondEveryScreenIsShrunkToo) {
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  MainWindowGeometry now = DesignGeometry();
  now.T.height = kMost;
  const auto shrunk = LayOut(7000, 6000, kMost, kAt96, now);
  EXPECT_EQ(shrunk.g.T.height, 6000 - now.T.top - 1500);
  EXPECT_EQ(shrunk.topHeight, shrunk.g.T.height);
  EXPECT_EQ(shrunk.g.B.Bottom(), shrunk.g.txtStatus.top + 1);

  // When there is no room for that either, everything below it is out of sight.
  const auto flat = LayOut(7000, 1000, kMost, kAt96, now).g;
  EXPECT_EQ(flat.T.Bottom(), kMost);
  EXPECT_EQ(flat.frCenter.top, kMost);
  EXPECT_EQ(flat.B.top, kMost);
  EXPECT_EQ(flat.B.height, DesignGeometry().B.height);
}

TEST(LayoutTest, StacksPaneStripGripAndPane) {
  const auto g = LayOut(7000, 6000).g;
  EXPECT_EQ(g.frCenter.left, g.T.left);
  EXPECT_EQ(g.frCenter.top, g.T.Bottom());
  EXPECT_EQ(g.frCenter.width, g.T.width);
  EXPECT_EQ(g.imgSplitter.left, g.T.left);
  EXPECT_EQ(g.imgSplitter.width, g.T.width);
  EXPECT_EQ(g.imgSplitter.top, g.frCenter.Bottom());
  EXPECT_EQ(g.picSplitter.left, g.T.left);
  EXPECT_EQ(g.picSplitter.width, g.T.width);
  EXPECT_EQ(g.B.left, g.T.left);
  EXPECT_EQ(g.B.top, g.imgSplitter.Bottom());
  EXPECT_EQ(g.B.width, 6970);
}

TEST(LayoutTest, TheBottomPaneReachesOneTwipIntoTheStatusBox) {
  const auto g = LayOut(7000, 6000).g;
  EXPECT_EQ(g.B.Bottom(), g.txtStatus.top + 1);
}

TEST(LayoutTest, ArrangesTheCentreStripFromTheRight) {
  const auto g = LayOut(7000, 6000, 1200, {12, 12}).g;
  EXPECT_EQ(g.chkDetail.Right(), g.frCenter.width);
  EXPECT_EQ(g.txtCount.left, g.chkDetail.left - g.txtCount.width - 48);
  EXPECT_EQ(g.txtWin2.Right(), g.txtCount.left);
  EXPECT_EQ(g.txtWin2.top, g.txtWin1.top);
  EXPECT_EQ(g.lblListKind.Right(), g.txtCount.left - 48);
}

TEST(LayoutTest, AStepThatWouldTurnASizeNegativeChangesNothing) {
  const MainWindowGeometry before = LayOut(7000, 6000).g;
  const auto narrow = LayOut(20, 6000, 1200, kAt96, before).g;
  EXPECT_EQ(narrow.T.width, before.T.width);
  EXPECT_EQ(narrow.B.width, before.B.width);
  EXPECT_EQ(narrow.txtStatus.width, before.txtStatus.width);
  EXPECT_EQ(narrow.lblMsg.width, before.lblMsg.width);
  EXPECT_EQ(narrow.lblStatus.width, before.lblStatus.width);
  // The steps after it still run.
  EXPECT_EQ(narrow.fr_Help.left, 20 - before.fr_Help.width);
  EXPECT_EQ(narrow.B.top, narrow.imgSplitter.Bottom());

  std::int32_t topHeight = 1200;
  const MainWindowGeometry flat = Layout(before, {7000, 100, kAt96}, topHeight);
  EXPECT_EQ(flat.T.height, before.T.height);
  EXPECT_EQ(flat.B.height, before.B.height);
  EXPECT_EQ(topHeight, 1200);
}

TEST(LayoutTest, ANegativeStoredHeightChangesNothing) {
  const MainWindowGeometry before = LayOut(7000, 6000).g;
  EXPECT_EQ(LayOut(7000, 6000, -500, kAt96, before).g.T.height, before.T.height);
}

TEST(LayoutTest, MovesNothingElse) {
  // A second layout gives the same result.
  const auto once = LayOut(5640, 4500);
  const auto twice = LayOut(5640, 4500, once.topHeight, kAt96, once.g);
  EXPECT_EQ(twice.g, once.g);
  std::set<int> moved;
  for (const MovedControl& control : MovedControls()) moved.insert(control.id);
  EXPECT_EQ(moved, (std::set<int>{chkAutoStop, chkTurnBack, fr_Mous, lblStatus, fr_Help, lblMsg,
                                  txtStatus, frCenter, imgSplitter, picSplitter, chkDetail,
                                  txtCount, txtWin1, txtWin2, lblListKind}));
}

TEST(SplitterPositionTest, KeepsItsDistance) {
  EXPECT_EQ(SplitterPosition(3000, 0, 6000), 3000);
  EXPECT_EQ(SplitterPosition(3000, 45, 6000), 3045);
  EXPECT_EQ(SplitterPosition(3000, -1600, 6000), 1400);
  EXPECT_EQ(SplitterPosition(3000, -1599, 6000), 1401);
  EXPECT_EQ(SplitterPosition(3000, -1601, 6000), 1400);
  EXPECT_EQ(SplitterPosition(3000, 1599, 6000), 4599);
  EXPECT_EQ(SplitterPosition(3000, 1600, 6000), 4600);
  EXPECT_EQ(SplitterPosition(3000, 9000, 6000), 4600);
}

TEST(SplitterPositionTest, InALowWindowTheTopLimitIsTestedFirst) {
  EXPECT_EQ(SplitterPosition(1000, 399, 2500), 1400);
  EXPECT_EQ(SplitterPosition(1000, 400, 2500), 1100);
  EXPECT_EQ(SplitterPosition(1000, 2000, 2500), 1100);
}

TEST(TopPaneHeightForTest, EndsStripAndPaneAtThePosition) {
  MainWindowGeometry now;
  now.T = {30, 765, 5000, 1200};
  now.frCenter = {30, 1965, 5000, 285};
  EXPECT_EQ(TopPaneHeightFor(2700, now), 1650);
  EXPECT_EQ(TopPaneHeightFor(900, now), -150);
}

TEST(TwipsScaleTest, ControlsAreNeverSmallerThanTheirTexts) {
  EXPECT_EQ(ScaleForDpi(96).TwipsPerPixelX, 15);
  EXPECT_EQ(ScaleForDpi(120).TwipsPerPixelX, 12);
  EXPECT_EQ(ScaleForDpi(144).TwipsPerPixelX, 10);
  EXPECT_EQ(ScaleForDpi(168).TwipsPerPixelX, 8);
  EXPECT_EQ(ScaleForDpi(192).TwipsPerPixelX, 7);
}

TEST(TwipsScaleTest, NeighboursMeetAtTheSamePixel) {
  constexpr TwipsScale kScale{7, 7};
  for (std::int32_t top = 0; top < 50; ++top) {
    const TwipsRect upper{0, top, 100, 123};
    const TwipsRect lower{0, upper.Bottom(), 100, 99};
    EXPECT_EQ(kScale.Pixels(upper).bottom, kScale.Pixels(lower).top);
  }
}

TEST(MainWindowControlsTest, EveryNumberStandsOnce) {
  std::set<int> ids;
  for (const ControlRow& row : MainWindowControls()) {
    EXPECT_TRUE(ids.insert(row.id).second) << row.id;
    EXPECT_TRUE(row.parent == 0 || ids.contains(row.parent)) << row.id << " precedes its frame";
  }
}

TEST(TimersTest, ThereAreFour) {
  using capture::CaptureTimer;
  std::map<CaptureTimer, std::uint32_t> intervals;
  for (const capture::TimerInterval& row : capture::kTimers) {
    intervals[row.timer] = row.milliseconds;
  }
  EXPECT_EQ(intervals, (std::map<CaptureTimer, std::uint32_t>{{CaptureTimer::Timer_MsgLoop, 5},
                                                              {CaptureTimer::Timer2, 10},
                                                              {CaptureTimer::Timer_Go, 10},
                                                              {CaptureTimer::Timer_End, 10}}));
}

}  // namespace
}  // namespace ui
