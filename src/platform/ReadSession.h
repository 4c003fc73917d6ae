// What a long reader gets in addition to its window: where to show the progress, how to yield to
// the program, and whether to go on.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace platform {

// What ends a reading before its last item.
enum class ReadUntil {
  kPointerLeaves,  // another window is the target
  kCaptureEnds,    // that, or the capture ends
};

struct ReadSession {
  // The current target of the capture. It changes while the reader yields; a reader stops when it
  // is no longer the window being read. Null when no capture runs.
  const HWND& target;

  std::function<void(const std::wstring& text)> showProgress;

  // Dispatches the pending messages of this thread.
  std::function<void()> yield;

  // False when the capture should end.
  std::function<bool()> stillRunning;

  // The window being read: the target when the report began.
  HWND window = target;

  // After each item: shows the progress and yields.
  void Step(const std::wstring& progress) const {
    showProgress(progress);
    yield();
  }

  // Whether the reading goes on, asked before or after each item.
  bool GoesOn(ReadUntil end) const {
    return target == window && (end == ReadUntil::kPointerLeaves || stillRunning());
  }
};

}  // namespace platform
