// Counted reports of the running program on programs that answer wrongly, hang, vanish and die.
#include <windows.h>

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdio>
#include <functional>
#include <memory>

#include "Hands.h"
#include "Plan.h"
#include "Target.h"
#include "driver/GuiTest.h"
#include "driver/Holdings.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/WaitFor.h"
#include "ui/ControlIds.h"

namespace soak {
namespace {

constexpr int kReports = 500;
constexpr gui::Milliseconds kMoment{100};
// Kept by Wine for each program with objects that dies in the middle of a call.
constexpr int kKeptEvents = 3;

// Stay open, whatever is read.
constexpr TargetKind kLiars[] = {
    {"list box, understates", Source::kLists, "behave=understate listbox=long", false},
    {"list view, changes", Source::kLists, "behave=change listview=many:3", false},
    {"toolbar, negative", Source::kLists, "behave=negative toolbar=many:9", false},
    {"members that fail", Source::kAccessible, "codes", false},
};
// End when they are read.
constexpr TargetKind kMortals[] = {
    {"list box, dies", Source::kLists, "behave=die listbox=many:9", true},
    {"list box, vanishes", Source::kLists, "behave=vanish listbox=many:9", false},
    {"object, dies", Source::kAccessible, "dies", true},
};

Place PlaceOf(std::size_t index) { return PlaceOnDesktop(static_cast<int>(index)); }
constexpr std::size_t kMortalPlace = std::size(kLiars);
static_assert(kMortalPlace < kPlaces);

class ReportsTest : public gui::GuiTest {
 protected:
  ReportsTest() {
    for (std::size_t i = 0; i < liars_.size(); ++i) {
      liars_[i] = std::make_unique<Target>(kLiars[i], PlaceOf(i));
    }
  }

  // From its first step to its last; meanwhile runs in between.
  void ReportAt(
      std::size_t place, const std::function<void()>& meanwhile = [] {}) {
    const POINT point = {PlaceOf(place).left + 100, PlaceOf(place).top + 100};
    const gui::Control target(WindowFromPoint(point), "the target");
    gui::pointer::MoveTo(point);
    gui::Require(program_[ui::txthWnd].TextBecomes(target.HandleText()));
    meanwhile();
    // Some of them have no text, and the message line then says so.
    gui::Require(gui::WaitFor("the report ends", [&](std::string& seen) {
      seen = program_[ui::lblMsg].Text();
      return seen != "取得中・・・・";
    }));
    ++reports_;
  }

  // Every program is read several times, one hangs for a moment, and each of the others ends.
  void Round() {
    constexpr int kTimes = 4;
    for (int time = 0; time < kTimes; ++time) {
      for (std::size_t place = 0; place < liars_.size(); ++place) ReportAt(place);
    }
    liars_[0]->Hang();
    ReportAt(0, [&] {
      gui::Last(kMoment);
      liars_[0]->Wake();
    });
    // They are at one place, where the pointer must not have rested before.
    for (std::size_t i = 0; i < std::size(kMortals); ++i) {
      const TargetKind& kind = kMortals[i];
      ReportAt(i + 1);
      Target mortal(kind, PlaceOf(kMortalPlace));
      ReportAt(kMortalPlace);
      mortal.Kill();
      servers_ += kind.source == Source::kAccessible ? 1 : 0;
    }
  }

  // Rounds for that many reports, then rest.
  gui::Holdings HoldingsAfter(int reports) {
    reports_ = servers_ = 0;
    hands_.Do({Do::kGo});
    while (reports_ < reports) Round();
    hands_.Settle();
    return gui::HoldingsOf(program_.Process().Handle());
  }

  std::array<std::unique_ptr<Target>, std::size(kLiars)> liars_;
  const gui::Program program_{{.conf = "action test = 0\n"}};
  Hands hands_{program_};
  int reports_ = 0;
  int servers_ = 0;
};

TEST_F(ReportsTest, FiveHundredLeaveNothingBehind) {
  hands_.Settle();
  hands_.WarmUp();
  const gui::Holdings before = HoldingsAfter(1);
  const gui::Holdings after = HoldingsAfter(kReports);
  std::printf("%d reports | before: %s | after: %s\n", reports_, before.Text().c_str(),
              after.Text().c_str());
  EXPECT_TRUE(IsWithin(before, after, {.events = servers_ * kKeptEvents}));
}

}  // namespace
}  // namespace soak
