#include "capture/PointerSampling.h"

#include "capture/CaptureWords.h"
#include "platform/Rounding.h"

namespace capture {
namespace {

POINT Shifted(POINT point, const settings::Settings& set) {
  if (set.shift != 1) return point;
  return {platform::ClampToInt32(std::int64_t{point.x} + set.shiftx),
          platform::ClampToInt32(std::int64_t{point.y} + set.shifty)};
}

}  // namespace

void SamplePointer(const CaptureContext& context) {
  CaptureState& state = context.state;
  CaptureSystem& system = context.system;
  if (!state.CaptureRunning) {
    state.TargetWindow = nullptr;
    return;
  }
  POINT shown = system.CursorPosition();
  state.CapturePoint = Shifted(shown, context.settings);
  state.TargetWindow = system.WindowAt(state.CapturePoint);
  if (context.settings.mousPos == L"client") {
    // Relative to the parent (a dialog), not to the control in it.
    const HWND parent = system.Parent(state.TargetWindow);
    if (parent != nullptr) shown = system.ToClient(parent, shown);
  }
  context.view.SetText(ViewText::lblMousePos, FormatMousePosition(shown));
}

}  // namespace capture
