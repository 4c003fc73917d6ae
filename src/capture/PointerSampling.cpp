#include "capture/PointerSampling.h"

#include "capture/CaptureWords.h"
#include "platform/Rounding.h"

namespace capture {
namespace {

POINT Shifted(POINT point, const settings::Settings& settings) {
  if (settings.shift != 1) return point;
  return {platform::ClampToInt32(std::int64_t{point.x} + settings.shiftx),
          platform::ClampToInt32(std::int64_t{point.y} + settings.shifty)};
}

}  // namespace

void SamplePointer(const CaptureContext& context) {
  const auto& [state, settings, view, system] = context;
  if (!state.CaptureRunning) {
    state.TargetWindow = nullptr;
    return;
  }
  POINT shown = system.CursorPosition();
  state.CapturePoint = Shifted(shown, settings);
  state.TargetWindow = system.WindowAt(state.CapturePoint);
  if (settings.mousPos == L"client") {
    // Positions are written down relative to the dialog, not to the control in it.
    const HWND parent = system.Parent(state.TargetWindow);
    if (parent != nullptr) shown = system.ToClient(parent, shown);
  }
  view.SetText(ViewText::lblMousePos, FormatMousePosition(shown));
}

}  // namespace capture
