#include "ui/StartUp.h"

#include "capture/CaptureWords.h"

namespace ui {

void Form_Load(StartUpSteps& steps, const settings::Settings& settings,
               std::wstring_view commandLine) {
  steps.ShowVersion();
  steps.TakeTwipsPerPixel();
  steps.PrepareLabels();
  steps.LoadConfig();
  steps.ApplyDisplaySettings();
  steps.ShowStopHint();
  steps.SetActionKey();
  steps.StartIdlePolling();
  if (settings.autoStart == 1 && !capture::ForbidsAutoStart(commandLine)) {
    steps.StartCaptureSoon();
  }
}

}  // namespace ui
