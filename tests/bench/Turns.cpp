#include "Turns.h"

#include <windows.h>

#include <objbase.h>

#include <chrono>

namespace bench {
namespace {

using Clock = std::chrono::steady_clock;

double Milliseconds(const std::function<void()>& work) {
  const auto start = Clock::now();
  work();
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

}  // namespace

Apartment::Apartment() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
Apartment::~Apartment() { CoUninitialize(); }

void PumpMessages() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
}

std::vector<Pair> Compare(int rounds, const std::function<void()>& ours,
                          const std::function<void()>& bare) {
  ours();
  bare();
  std::vector<Pair> pairs;
  for (int i = 0; i < rounds; ++i) pairs.push_back({Milliseconds(ours), Milliseconds(bare)});
  return pairs;
}

}  // namespace bench
