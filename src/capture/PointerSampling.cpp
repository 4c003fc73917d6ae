#include "capture/PointerSampling.h"

#include <utility>

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

platform::ReadPoint PointToRead(const CaptureState& state) {
  const bool meant = state.GivenWindow != nullptr && state.GivenWindow != state.TargetWindow;
  return {state.CapturePoint, meant ? state.TargetWindow : nullptr};
}

void SamplePointer(const CaptureContext& context) {
  CaptureState& state = context.state;
  CaptureSystem& system = context.system;
  if (!state.CaptureRunning) {
    state.TargetWindow = nullptr;
    state.GivenWindow = nullptr;
    return;
  }
  POINT shown = system.CursorPosition();
  const POINT before = std::exchange(state.CapturePoint, Shifted(shown, context.settings));
  const HWND given = system.WindowAt(state.CapturePoint);
  // While pointer and window stay, nothing more is asked.
  if (given != state.GivenWindow || !platform::SamePoint(before, state.CapturePoint)) {
    state.TargetWindow = system.WindowMeant(given, state.CapturePoint);
    state.GivenWindow = given;
  }
  if (context.settings.mousPos == L"client") {
    // Relative to the parent (a dialog), not to the control in it.
    const HWND parent = system.Parent(state.TargetWindow);
    if (parent != nullptr) shown = system.ToClient(parent, shown);
  }
  context.view.SetText(ViewText::lblMousePos, FormatMousePosition(shown));
}

}  // namespace capture
