// What the readers of pages cost beyond the calls into the page's objects.
#pragma once

#include <vector>

#include "Statistics.h"

namespace bench {

// The report on an element that many others surround, the page in another process, against the
// same calls with nothing around them.
std::vector<Pair> MeasureElementChain(int elements);

}  // namespace bench
