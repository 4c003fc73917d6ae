// What the readers of accessible objects cost beyond the calls into these objects.
#pragma once

#include <vector>

#include "Statistics.h"

namespace bench {

// The text at a point over an object of another process, against the necessary calls alone.
std::vector<Pair> MeasureTextAtPoint();

// The report on such an object, with its ancestors and children.
std::vector<Pair> MeasureAccessibleReport();

// The names of a window's children, each an object of its own.
std::vector<Pair> MeasureChildListing(int children);

// The items of a tree.
std::vector<Pair> MeasureTreeListing(int items);

// Ten times as many items against ten times the time for that many.
std::vector<Pair> MeasureTreeGrowth(int items);

}  // namespace bench
