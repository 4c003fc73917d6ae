#include "ui/MainWindowConfig.h"

#include "ui/ControlIds.h"

namespace ui {

WINDOWPLACEMENT NormalPlacement(const settings::WindowValues& values) {
  WINDOWPLACEMENT placement{};
  placement.length = sizeof placement;
  placement.showCmd = SW_SHOWNORMAL;
  placement.rcNormalPosition = {values.formLeft, values.formTop, values.formRight,
                                values.formBottom};
  return placement;
}

settings::ScreenTwips MainWindowConfig::Screen() const {
  const TwipsScale& scale = face_.Scale();
  return {scale.TwipsX(GetSystemMetrics(SM_CXSCREEN)), scale.TwipsY(GetSystemMetrics(SM_CYSCREEN)),
          scale.TwipsPerPixelX, scale.TwipsPerPixelY};
}

void MainWindowConfig::ApplyPlacement(const settings::WindowValues& values) {
  const WINDOWPLACEMENT placement = NormalPlacement(values);
  SetWindowPlacement(face_.Window(), &placement);
}

settings::WindowValues MainWindowConfig::CurrentValues() const {
  WINDOWPLACEMENT placement{};
  placement.length = sizeof placement;
  GetWindowPlacement(face_.Window(), &placement);
  const RECT& normal = placement.rcNormalPosition;
  return {normal.left, normal.top, normal.right, normal.bottom,
          BoxValue(face_.Control(chkTurnBack))};
}

std::int32_t MainWindowConfig::SetTurnBackBox(std::int32_t value) {
  SetBox(face_.Control(chkTurnBack), value);
  return BoxValue(face_.Control(chkTurnBack));
}

void MainWindowConfig::SetDetailBox(std::int32_t value) { SetBox(face_.Control(chkDetail), value); }

void MainWindowConfig::SetAutoStopBox(std::int32_t value) {
  SetBox(face_.Control(chkAutoStop), value);
}

}  // namespace ui
