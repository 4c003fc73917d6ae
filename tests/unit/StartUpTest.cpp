#include "ui/StartUp.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace ui {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class Recorder : public StartUpSteps {
 public:
  void ShowVersion() override { steps.push_back("version"); }
  void TakeTwipsPerPixel() override { steps.push_back("twips per pixel"); }
  void PrepareLabels() override { steps.push_back("labels"); }
  void LoadConfig() override {
    steps.push_back("configuration");
    if (onLoad) onLoad();
  }
  void ApplyDisplaySettings() override { steps.push_back("display settings"); }
  void ShowStopHint() override { steps.push_back("stop hint"); }
  void SetActionKey() override { steps.push_back("action key"); }
  void StartIdlePolling() override { steps.push_back("idle polling"); }
  void StartCaptureSoon() override { steps.push_back("capture"); }

  std::vector<std::string> steps;
  std::function<void()> onLoad;
};

TEST(FormLoadTest, RunsItsStepsInOrder) {
  settings::Settings settings;
  Recorder recorder;
  // What decides about the start is what the file says, not what was there before.
  recorder.onLoad = [&settings] { settings.autoStart = 1; };
  Form_Load(recorder, settings, L"");
  EXPECT_THAT(recorder.steps, ElementsAre("version", "twips per pixel", "labels", "configuration",
                                          "display settings", "stop hint", "action key",
                                          "idle polling", "capture"));
}

TEST(FormLoadTest, StartsACaptureOnlyWhenAskedAndNotForbidden) {
  const auto steps = [](std::int32_t autoStart, const wchar_t* commandLine) {
    settings::Settings settings;
    settings.autoStart = autoStart;
    Recorder recorder;
    Form_Load(recorder, settings, commandLine);
    return recorder.steps;
  };
  EXPECT_THAT(steps(0, L""), Not(Contains("capture")));
  EXPECT_THAT(steps(2, L""), Not(Contains("capture")));
  EXPECT_THAT(steps(1, L"no_start"), Not(Contains("capture")));
  EXPECT_THAT(steps(1, L"x no_start"), Contains("capture"));
  EXPECT_THAT(steps(1, L"debug"), Contains("capture"));
}

}  // namespace
}  // namespace ui
