// From pairs of measurements to one row of the bench.
#pragma once

#include <string>
#include <vector>

namespace bench {

// The program and its yardstick, measured at the same time or one right after the other, so that
// other load of the machine affects both.
struct Pair {
  double program;
  double yardstick;
};

struct Summary {
  double ratio;
  double figure;  // of the program
  double spread;  // the distance between the quartiles of the pairs' ratios
};

// The value below which that part of the values lies, between 0 and 1. values must not be empty.
double Quantile(std::vector<double> values, double part);

// The median of the pairs' ratios, and of the program's figures. pairs must not be empty.
Summary SummarisePairs(const std::vector<Pair>& pairs);

// The figures that this part of the program's, and of the yardstick's, do not exceed, and their
// ratio. pairs must not be empty.
Summary SummariseAt(double part, const std::vector<Pair>& pairs);

// name, ratio, limit, figure, spread, separated by TABs.
std::string RowText(const std::string& name, double limit, const Summary& summary);

}  // namespace bench
