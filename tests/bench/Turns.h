// The program's readers and a yardstick in turns, on one thread that takes part in COM.
#pragma once

#include <functional>
#include <vector>

#include "Statistics.h"

namespace bench {

// While it exists, this thread can use COM objects of other programs.
class Apartment {
 public:
  Apartment();
  ~Apartment();
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

// Dispatches the messages of this thread, as the program does between two items.
void PumpMessages();

// Both in milliseconds, one after the other, so that other load of the machine affects both; after
// one run that is not counted.
std::vector<Pair> Compare(int rounds, const std::function<void()>& ours,
                          const std::function<void()>& bare);

}  // namespace bench
