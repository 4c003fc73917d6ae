// What a report costs beyond its necessary system calls.
#pragma once

#include <vector>

#include "Statistics.h"

namespace bench {

// The information block of a window with 5,000 children against the bare system calls for it.
std::vector<Pair> MeasureInformation();

// The same block against ten times that of a window with 500 children.
std::vector<Pair> MeasureInformationGrowth();

// A text of 20 MB put into a pane and written to its file against ten times one of 2 MB.
std::vector<Pair> MeasureDeliveryGrowth();

}  // namespace bench
