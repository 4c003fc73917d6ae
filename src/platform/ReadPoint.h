// Where a report reads.
#pragma once

#include <windows.h>

namespace platform {

constexpr bool SamePoint(POINT a, POINT b) { return a.x == b.x && a.y == b.y; }

struct ReadPoint {
  POINT at;  // screen pixels

  // The window that is meant, where the system gives another one at the point: a frame around it,
  // or its parent because it is disabled. Null everywhere else.
  HWND window = nullptr;
};

}  // namespace platform
