// What every step of a capture works on, handed around as one.
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

// Runs one statement of a capture. Whatever fails in it is ignored and the capture goes on with
// the next: no window that is read may end it.
template <typename Statement>
void Attempt(Statement&& statement) noexcept {
  try {
    statement();
  } catch (...) {
  }
}

}  // namespace capture
