// The program's readers and a yardstick in turns, on one thread that takes part in COM.
#pragma once

#include <functional>
#include <vector>

#include "Statistics.h"

namespace bench {

// Makes this thread one that COM objects of other programs can be used on, while it lives.
class Apartment {
 public:
  Apartment();
  ~Apartment();
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

// Works off the messages of this thread, as the program does between two items.
void PumpMessages();

// Both in milliseconds, one after the other, so that whatever else the machine does falls on both;
// once before that for nothing.
std::vector<Pair> Compare(int rounds, const std::function<void()>& ours,
                          const std::function<void()>& bare);

}  // namespace bench
