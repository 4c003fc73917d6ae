// Which window the arguments mean.
#pragma once

#include <windows.h>

#include <optional>

#include "console/Arguments.h"
#include "platform/ReadPoint.h"

namespace console {

struct Target {
  HWND hwnd;
  platform::ReadPoint point;
  bool atPoint;  // whether the point was asked for, and not the window
};

// The window at the point; its hwnd is null when there is none.
Target TargetAt(POINT point);

// A window as such: its point is in its middle.
Target TargetOf(HWND hwnd);

// Nothing when there is no such window. Sends no message.
std::optional<Target> FindTarget(const Arguments& arguments);

}  // namespace console
