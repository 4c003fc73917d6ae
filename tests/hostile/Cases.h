// Thousands of cases that a seed determines: the case number and the seed repeat a case.
//
// The seed is the same in every run unless the environment variable VELMORA_SEED gives another;
// VELMORA_CASE runs one case alone. A failure shows both, also when the case ends the process.
#pragma once

#include <cstdint>
#include <functional>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace hostile {

class Random {
 public:
  Random(std::uint32_t seed, int number);

  // 0 to limit - 1.
  int Below(int limit);
  bool Chance(int percent) { return Below(100) < percent; }
  std::uint32_t Bits() { return static_cast<std::uint32_t>(engine_()); }
  // Any number, the ends of the range and small ones often.
  std::int32_t Number();

  template <typename Container>
  decltype(auto) OneOf(const Container& values) {
    return values[static_cast<std::size_t>(Below(static_cast<int>(std::size(values))))];
  }

  // Characters of every kind: line ends, blanks, quotes, halves of pairs, zeros. Mostly short,
  // longest characters at most.
  std::wstring Text(int longest);
  // The same without zero characters.
  std::wstring TextWithoutNul(int longest);
  // Any bytes.
  std::string Bytes(int longest);
  // Mostly short, at most longest.
  int Length(int longest);

 private:
  std::mt19937 engine_;
};

// Runs check for the cases 0 to count - 1, until one fails.
void ForEachCase(int count, const std::function<void(Random&)>& check);

// Makes a process that ends in the middle of a case report it before.
void TellCaseOnCrash();

}  // namespace hostile
