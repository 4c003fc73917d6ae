// What the main window does once when it has been loaded, in the order that its steps rely on.
#pragma once

#include <string_view>

#include "settings/Settings.h"

namespace ui {

class StartUpSteps {
 public:
  virtual ~StartUpSteps() = default;

  virtual void ShowVersion() = 0;
  virtual void TakeTwipsPerPixel() = 0;
  virtual void PrepareLabels() = 0;
  virtual void LoadConfig() = 0;
  virtual void ApplyDisplaySettings() = 0;
  virtual void ShowStopHint() = 0;
  virtual void SetActionKey() = 0;
  virtual void StartIdlePolling() = 0;
  virtual void StartCaptureSoon() = 0;
};

// Runs the steps; the last one only when settings, by then loaded, ask for it and the command line
// does not forbid it.
void Form_Load(StartUpSteps& steps, const settings::Settings& settings,
               std::wstring_view commandLine);

}  // namespace ui
