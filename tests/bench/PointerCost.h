// What it costs to choose the window under the pointer.
#pragma once

#include <vector>

#include "Statistics.h"

namespace bench {

// The window that is meant at changing points of another program's window, against the system's
// window and the child of it at the point, which the choice needs.
std::vector<Pair> MeasureWindowMeant();

}  // namespace bench
