#include "Statistics.h"

#include <algorithm>
#include <cstddef>
#include <iomanip>
#include <sstream>

namespace bench {
double Quantile(std::vector<double> values, double part) {
  std::sort(values.begin(), values.end());
  const double place = part * static_cast<double>(values.size() - 1);
  const auto below = static_cast<std::size_t>(place);
  const std::size_t above = std::min(below + 1, values.size() - 1);
  const double rest = place - static_cast<double>(below);
  return values[below] * (1 - rest) + values[above] * rest;
}

namespace {

struct Columns {
  std::vector<double> program;
  std::vector<double> yardstick;
  std::vector<double> ratios;

  explicit Columns(const std::vector<Pair>& pairs) {
    for (const Pair& pair : pairs) {
      program.push_back(pair.program);
      yardstick.push_back(pair.yardstick);
      ratios.push_back(pair.program / pair.yardstick);
    }
  }
  double Spread() const { return Quantile(ratios, 0.75) - Quantile(ratios, 0.25); }
};

}  // namespace

Summary SummarisePairs(const std::vector<Pair>& pairs) {
  const Columns columns(pairs);
  return {Quantile(columns.ratios, 0.5), Quantile(columns.program, 0.5), columns.Spread()};
}

Summary SummariseAt(double part, const std::vector<Pair>& pairs) {
  const Columns columns(pairs);
  const double figure = Quantile(columns.program, part);
  return {figure / Quantile(columns.yardstick, part), figure, columns.Spread()};
}

std::string RowText(const std::string& name, double limit, const Summary& summary) {
  std::ostringstream row;
  row << std::fixed << std::setprecision(2) << name << '\t' << summary.ratio << '\t' << limit
      << '\t' << summary.figure << '\t' << summary.spread;
  return row.str();
}

}  // namespace bench
