// What the whole program costs, run as users run it.
#pragma once

#include <vector>

#include "Statistics.h"

namespace bench {

// From the start of the process to its visible window, against a program with an empty window.
std::vector<Pair> MeasureStartUp();

// The processor time of four seconds with the pointer at rest, with or without a capture, against a
// bare loop that makes the same polls.
std::vector<Pair> MeasureProcessorTime(bool capturing);

}  // namespace bench
