// What a whole report costs.
#pragma once

#include <vector>

#include "Statistics.h"

namespace bench {

// A report on an object of another program, against the questions to the system that it asks.
std::vector<Pair> MeasureReport();

}  // namespace bench
