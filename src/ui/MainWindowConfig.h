// The main window as the window that the configuration is applied to.
#pragma once

#include "settings/ConfigFile.h"
#include "ui/MainWindowFace.h"

namespace ui {

// The placement record of a restored window with this rectangle: flags 0, shown normally, the
// minimised and maximised positions zero.
WINDOWPLACEMENT NormalPlacement(const settings::WindowValues& values);

class MainWindowConfig : public settings::ConfigWindow {
 public:
  explicit MainWindowConfig(MainWindowFace& face) : face_(face) {}

  settings::ScreenTwips Screen() const override;
  void HoldLayout(bool hold) override { face_.HoldLayout(hold); }
  void ApplyPlacement(const settings::WindowValues& values) override;
  settings::WindowValues CurrentValues() const override;
  void HighlightMousePos() override { face_.SetMousePosColour(kMousePosHighlight); }
  std::int32_t SetTurnBackBox(std::int32_t value) override;
  void SetDetailBox(std::int32_t value) override;
  void SetAutoStopBox(std::int32_t value) override;
  void SetVisibleTopPaneHeight(std::int32_t height) override {
    face_.SetVisibleTopPaneHeight(height);
  }
  void RunLayout() override { face_.Form_Resize(); }

 private:
  MainWindowFace& face_;
};

}  // namespace ui
