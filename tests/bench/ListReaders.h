// What the item readers cost beyond their necessary system calls.
#pragma once

#include <string>
#include <vector>

#include "Statistics.h"

namespace bench {

// All items of such a control (a kind of tests/cross/fixture) in another process, against a bare
// loop that makes the same system calls and keeps no text. Both run in turns, item by item, so that
// other load of the machine affects both; each pair is the time for 100 items.
std::vector<Pair> MeasureItems(const std::string& kind, int items);

// A row of the whole list view against one of its first tenth; the extra time of the bare loop is
// subtracted. If ten times the rows took 10.5 times as long, this would be 1.05.
std::vector<Pair> MeasureRowGrowth(int rows);

}  // namespace bench
