// How soon the pane shows the text under the pointer after the pointer stops.
#pragma once

#include <vector>

#include "Statistics.h"

namespace bench {

// The pointer moves between two Notepads while the program and a bare loop, which makes the same
// calls and nothing else, both capture. Each pair is one stop of the pointer: from its arrival to
// the text in the program's pane, and in the bare loop's.
std::vector<Pair> MeasureLatency();

// What the program takes beyond the 50 ms for which the pointer has to rest, as a part of 40 ms:
// one pair a stop.
std::vector<Pair> LatencyAtTheMedian();

// The time that 99 of 100 stops do not exceed, beyond these 50 ms, as a part of 80 ms: one pair.
std::vector<Pair> LatencyAtTheEnd();

}  // namespace bench
