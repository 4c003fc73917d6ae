// The program over a desktop of programs that open, close, hang and die, for as long as one likes:
//
//   soak_tests.exe [--seconds=60] [--seed=NUMBER]
//
// The seed decides what is done, the time only how much of it. A failure shows the seed and the
// last actions.
#include <windows.h>

#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <deque>
#include <exception>
#include <filesystem>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "Hands.h"
#include "Plan.h"
#include "bed/Run.h"
#include "capture/OutputDelivery.h"
#include "driver/GuiTest.h"
#include "driver/Holdings.h"
#include "driver/Paths.h"
#include "driver/Text.h"
#include "driver/WaitFor.h"

namespace soak {
namespace {

using Clock = std::chrono::steady_clock;

struct Options {
  std::uint32_t seed = std::random_device{}();
  int seconds = 60;
};
Options options;

// Over-long texts are saved there.
class OverflowFile {
 public:
  ~OverflowFile() {
    std::error_code ignored;
    const std::filesystem::path desktop = capture::DesktopFolder();
    std::filesystem::remove(desktop / capture::kTopOverflowFile, ignored);
    std::filesystem::remove(desktop / capture::kBottomOverflowFile, ignored);
  }
};

class SoakTest : public gui::GuiTest {
 protected:
  void Carry(Hands& hands, const std::vector<Action>& actions) {
    for (const Action& action : actions) Carry(hands, action);
  }

  void Carry(Hands& hands, const Action& action) {
    Note(std::to_string(++count_) + ": " + ToText(action));
    if (action.what == Do::kOpen && GivesObjects(static_cast<std::size_t>(action.b))) ++servers_;
    hands.Do(action);
    messages_ += hands.CloseMessages();
    hands.RequireProgram();
  }

  // One run of the program with random settings, closed at its end, sometimes in the middle of a
  // capture.
  void ShortLife(Plan& plan) {
    gui::Program program({.conf = plan.Settings(true), .folder = folder_});
    {
      Hands hands(program);
      Note("a short life begins");
      for (const Action& action : plan.Glance()) {
        Note(ToText(action));
        if (program.Process().IsRunning()) hands.Do(action);
        hands.CloseMessages();
      }
    }
    EXPECT_EQ(program.CloseAndWait(), 0U) << Story();
  }

  void LongLife(Plan& plan) {
    gui::Program program({.conf = plan.Settings(false), .folder = folder_});
    Hands hands(program);
    // So that the tour reads what it points at, whatever the settings file said.
    hands.Settle();
    hands.WarmUp();
    Carry(hands, plan.Tour());
    hands.Settle();
    servers_ = 0;
    const gui::Holdings before = gui::HoldingsOf(program.Process().Handle());
    std::printf("after the tour (%d actions): %s\n", count_, before.Text().c_str());

    const auto end = Clock::now() + std::chrono::seconds(options.seconds);
    while (Clock::now() < end) Carry(hands, plan.Next());
    Carry(hands, plan.Rest());
    EXPECT_EQ(hands.Unwell(), "") << Story();
    hands.CloseAll();
    hands.Settle();

    gui::Holdings after;
    EXPECT_TRUE(gui::WaitFor("the program holds no more than before", [&](std::string& seen) {
      after = gui::HoldingsOf(program.Process().Handle());
      seen = after.Text();
      return IsWithin(before, after, Kept());
    })) << Story();
    std::printf("after %d actions, %d message boxes: %s\n", count_, messages_,
                after.Text().c_str());
    EXPECT_EQ(program.CloseAndWait(), 0U) << Story();
  }

  // What Wine keeps for programs whose accessible objects were in use when they ended: an event for
  // each object, and the connection to the program.
  gui::Allowance Kept() const {
    constexpr int kObjects = 150;
    return {.handles = servers_, .events = servers_ * kObjects};
  }

  static bool GivesObjects(std::size_t kind) {
    const Source source = TargetKinds()[kind].source;
    return source == Source::kAccessible || source == Source::kBrowser;
  }

  void Note(const std::string& action) {
    last_.push_back(action);
    if (last_.size() > kRemembered) last_.pop_front();
  }

  std::string Story() const {
    std::string story = "seed " + std::to_string(options.seed) + ", last actions:\n";
    for (const std::string& action : last_) story += "  " + action + "\n";
    return story;
  }

 private:
  static constexpr std::size_t kRemembered = 25;

  std::filesystem::path folder_ = gui::FreshFolder();
  OverflowFile overflowFile_;
  std::deque<std::string> last_;
  int count_ = 0;
  int messages_ = 0;
  int servers_ = 0;  // programs with accessible objects of their own, opened so far
};

TEST_F(SoakTest, ProgramAndDesktopStillWorkAfterwards) {
  Plan plan(options.seed);
  try {
    for (int life = 0; life < 2 + options.seconds / 60; ++life) ShortLife(plan);
    LongLife(plan);
  } catch (const std::exception& error) {
    ADD_FAILURE() << error.what() << "\n" << Story();
  }
}

// False when the word is not understood.
bool Take(const std::string& word) {
  if (word.starts_with("--seed=")) {
    options.seed = static_cast<std::uint32_t>(std::stoul(word.substr(7)));
  } else if (word.starts_with("--seconds=")) {
    options.seconds = std::stoi(word.substr(10));
  } else {
    return false;
  }
  return true;
}

}  // namespace
}  // namespace soak

int main(int count, char** words) {
  SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  testing::InitGoogleTest(&count, words);
  for (int i = 1; i < count; ++i) {
    if (soak::Take(words[i])) continue;
    std::fprintf(stderr, "unknown word: %s\n", words[i]);
    return 2;
  }
  std::setvbuf(stdout, nullptr, _IONBF, 0);
  std::printf("soak: --seed %u, %d s\n", soak::options.seed, soak::options.seconds);
  gui::SaveScreenshotOnFailure();
  return bed::Run();
}
