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

// One call of VelmoraText for the 1,000 rows of a list view with three columns, from the start of
// the process to its end, against a bare program that makes the same calls.
std::vector<Pair> MeasureTextCall();

}  // namespace bench
