// Only the seed determines the plan, and its actions fit together.
#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "Plan.h"
#include "TargetKinds.h"
#include "ui/ControlIds.h"

namespace soak {
namespace {

constexpr int kMany = 20000;

struct Whole {
  std::string settings;
  std::vector<Action> actions;

  bool operator==(const Whole&) const = default;
};

Whole WholePlan(std::uint32_t seed) {
  Plan plan(seed);
  Whole whole{plan.Settings(true), plan.Tour()};
  for (int i = 0; i < kMany; ++i) whole.actions.push_back(plan.Next());
  for (const Action& action : plan.Rest()) whole.actions.push_back(action);
  return whole;
}

TEST(PlanTest, SameSeedGivesTheSamePlan) {
  for (const std::uint32_t seed : {0U, 1U, 4'000'000'000U}) {
    EXPECT_EQ(WholePlan(seed), WholePlan(seed)) << seed;
  }
}

TEST(PlanTest, OtherSeedGivesAnotherPlan) {
  EXPECT_NE(WholePlan(1).settings, WholePlan(2).settings);
  EXPECT_NE(WholePlan(1).actions, WholePlan(2).actions);
}

TEST(PlanTest, TourMeetsEveryKindOfProgramAndAction) {
  Plan plan(7);
  std::set<Do> done;
  std::set<int> kinds;
  for (const Action& action : plan.Tour()) {
    done.insert(action.what);
    if (action.what == Do::kOpen) kinds.insert(action.b);
  }
  EXPECT_EQ(kinds.size(), TargetKinds().size());
  for (int what = 0; what <= static_cast<int>(Do::kCloseHotKeys); ++what) {
    if (static_cast<Do>(what) == Do::kSweep) continue;  // a move without its rest
    EXPECT_TRUE(done.contains(static_cast<Do>(what))) << ToText({static_cast<Do>(what)});
  }
}

TEST(PlanTest, RandomActionsAreOfEveryKind) {
  Plan plan(8);
  std::set<Do> done;
  for (int i = 0; i < kMany; ++i) done.insert(plan.Next().what);
  EXPECT_EQ(done.size(), static_cast<std::size_t>(Do::kCloseHotKeys) + 1);
}

TEST(PlanTest, ProgramsAreOpenedInFreePlacesAndTouchedOnlyWhileOpen) {
  bool open[kPlaces] = {};
  bool hung[kPlaces] = {};
  for (const Action& action : WholePlan(9).actions) {
    switch (action.what) {
      case Do::kOpen:
        ASSERT_FALSE(open[action.a]);
        open[action.a] = true;
        break;
      case Do::kClose:
        ASSERT_FALSE(hung[action.a]);
        [[fallthrough]];
      case Do::kKill:
        ASSERT_TRUE(open[action.a]);
        open[action.a] = hung[action.a] = false;
        break;
      case Do::kHang:
        ASSERT_TRUE(open[action.a] && !hung[action.a]);
        hung[action.a] = true;
        break;
      case Do::kWake:
        ASSERT_TRUE(hung[action.a]);
        hung[action.a] = false;
        break;
      default:
        break;
    }
  }
  for (const bool still : hung) EXPECT_FALSE(still);
}

TEST(PlanTest, DialogsAreUsedOnlyWhileOpen) {
  int open = 0;  // 1: the settings, 2: the hot keys before them
  for (const Action& action : WholePlan(10).actions) {
    switch (action.what) {
      case Do::kOpenSettings:
        ASSERT_EQ(open++, 0);
        break;
      case Do::kOpenHotKeys:
        ASSERT_EQ(open++, 1);
        break;
      case Do::kMoveSettings:
      case Do::kPressInSettings:
      case Do::kChooseInSettings:
      case Do::kTypeInSettings:
        ASSERT_EQ(open, 1);
        ASSERT_NE(action.a, ui::chkAutoClose);
        break;
      case Do::kChooseHotKey:
        ASSERT_EQ(open, 2);
        break;
      case Do::kCloseSettings:
        ASSERT_EQ(open--, 1);
        break;
      case Do::kCloseHotKeys:
        ASSERT_EQ(open--, 2);
        break;
      default:
        break;
    }
  }
  EXPECT_EQ(open, 0);
}

}  // namespace
}  // namespace soak
