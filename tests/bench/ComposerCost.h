// What a whole report costs.
#pragma once

#include <vector>

#include "Statistics.h"

namespace bench {

// A report on an object of another program, against the system calls that it makes.
std::vector<Pair> MeasureReport();

}  // namespace bench
