#include "ui/DialogPlace.h"

#include <gtest/gtest.h>

namespace ui {
namespace {

constexpr RECT kWork{0, 0, 1280, 1024};
constexpr SIZE kSize{315, 515};

std::pair<long, long> ReachableFrom(long x, long y, const RECT& work = kWork) {
  const POINT place = Reachable({x, y}, kSize, work);
  return {place.x, place.y};
}

TEST(ReachableTest, LeavesWhatCanBeReached) {
  for (const auto& place :
       {std::pair(0L, 0L), std::pair(482L, 254L), std::pair(1200L, 900L), std::pair(-200L, 10L)}) {
    EXPECT_EQ(ReachableFrom(place.first, place.second), place);
  }
}

TEST(ReachableTest, BringsTheTitleBarBack) {
  EXPECT_EQ(ReachableFrom(100, -40), std::pair(100L, 0L));
  EXPECT_EQ(ReachableFrom(100, 5000), std::pair(100L, 944L));
  EXPECT_EQ(ReachableFrom(-5000, 20), std::pair(-235L, 20L));
  EXPECT_EQ(ReachableFrom(5000, 20), std::pair(1200L, 20L));
}

TEST(ReachableTest, CountsFromTheWorkArea) {
  EXPECT_EQ(ReachableFrom(-1900, -300, {-1920, -200, 0, 880}), std::pair(-1900L, -200L));
}

TEST(CentredTest, PutsTheMiddleInTheMiddle) {
  const POINT place = Centred({281, 133}, kWork);
  EXPECT_EQ(place.x, 499);
  EXPECT_EQ(place.y, 445);
}

TEST(CloseButtonPlaceTest, StandsTenPixelsFromTheCorner) {
  const TwipsRect place = CloseButtonPlace({1, 2, 1140, 375}, 4605, 7200, {15, 15});
  EXPECT_EQ(place, (TwipsRect{4605 - 1140 - 150, 7200 - 375 - 150, 1140, 375}));
}

TEST(CloseButtonPlaceTest, UsesTheHorizontalFactorForBothMargins) {
  const TwipsRect place = CloseButtonPlace({0, 0, 1000, 300}, 4000, 5000, {12, 20});
  EXPECT_EQ(place.left, 4000 - 1000 - 120);
  EXPECT_EQ(place.top, 5000 - 300 - 120);
}

}  // namespace
}  // namespace ui
