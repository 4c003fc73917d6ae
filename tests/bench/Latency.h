// How soon the pane shows the text under the pointer after the pointer stops.
#pragma once

#include <vector>

#include "Statistics.h"

namespace bench {

// The pointer moves between two Notepads while the program and a bare loop, which makes the same
// calls and nothing else, both capture. Each pair is one stop of the pointer: from its arrival to
// the text in the program's pane, and in the bare loop's.
std::vector<Pair> MeasureLatency();

}  // namespace bench
