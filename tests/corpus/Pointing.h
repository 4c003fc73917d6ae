// Where a window can be pointed at.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "platform/ReadPoint.h"

namespace corpus {

// Why no point of the screen means a window.
enum class Hindrance {
  kNone,
  kNoPlace,     // no pixel of it is on the screen and inside its parents
  kItsParts,    // the windows inside it fill it
  kCovered,     // other windows lie over what they leave of it
  kUnderLabel,  // a label without a text does, which shows what is below it
  kUnknown,     // somewhere the program means a window that does not cover it
};

struct Pointed {
  std::optional<platform::ReadPoint> point;  // where a report reads it
  Hindrance hindrance = Hindrance::kNone;
  HWND met = nullptr;  // when the hindrance is unknown: what was found in its place
};

// Tries points in the whole rectangle of the window.
Pointed PointAt(HWND window);

}  // namespace corpus
