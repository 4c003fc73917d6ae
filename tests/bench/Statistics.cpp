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

Summary Summarise(const std::vector<Pair>& pairs) {
  std::vector<double> ratios;
  std::vector<double> figures;
  for (const Pair& pair : pairs) {
    ratios.push_back(pair.program / pair.yardstick);
    figures.push_back(pair.program);
  }
  return {Quantile(ratios, 0.5), Quantile(figures, 0.5),
          Quantile(ratios, 0.75) - Quantile(ratios, 0.25)};
}

std::string RowText(const std::string& name, double limit, const Summary& summary) {
  std::ostringstream row;
  row << std::fixed << std::setprecision(2) << name << '\t' << summary.ratio << '\t' << limit
      << '\t' << summary.median << '\t' << summary.spread;
  return row.str();
}

}  // namespace bench
