#include "Summary.h"

#include <array>
#include <cstddef>
#include <cstdio>
#include <numeric>

#include "bed/Needs.h"

namespace corpus {
namespace {

std::array<int, kOutcomes>& Counts() {
  static std::array<int, kOutcomes> counts{};
  return counts;
}

}  // namespace

void Count(Outcome outcome) { ++Counts()[static_cast<std::size_t>(outcome)]; }

void PrintSummary() {
  const auto& counts = Counts();
  std::printf("corpus in all | %d-bit system | %d windows", bed::Is64BitSystem() ? 64 : 32,
              std::accumulate(counts.begin(), counts.end(), 0));
  for (int i = 0; i < kOutcomes; ++i) {
    std::printf(" | %s %d", NameOf(static_cast<Outcome>(i)), counts[static_cast<std::size_t>(i)]);
  }
  std::printf("\n");
}

}  // namespace corpus
