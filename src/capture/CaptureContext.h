// What every step of a capture needs, in one struct.
#pragma once

#include "capture/CaptureState.h"
#include "capture/CaptureSystem.h"
#include "capture/CaptureView.h"
#include "settings/Settings.h"

namespace capture {

struct CaptureContext {
  CaptureState& state;
  const settings::Settings& settings;
  CaptureView& view;
  CaptureSystem& system;
};

// Runs one statement of a capture and ignores what it throws, because no window that is read may
// end a capture.
template <typename Statement>
void Attempt(Statement&& statement) noexcept {
  try {
    statement();
  } catch (...) {
  }
}

}  // namespace capture
