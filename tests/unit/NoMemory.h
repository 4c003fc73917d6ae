// While it exists, this process gets no block of memory of a megabyte or more; small ones are still
// available.
#pragma once

#include <windows.h>

#include <vector>

class NoMemory {
 public:
  NoMemory() {
    blocks_.reserve(5000);
    for (SIZE_T size = kLargest; size >= kSmallest; size /= 2) {
      while (void* const block = VirtualAlloc(nullptr, size, MEM_RESERVE, PAGE_NOACCESS)) {
        blocks_.push_back(block);
      }
    }
  }
  ~NoMemory() {
    for (void* const block : blocks_) VirtualFree(block, 0, MEM_RELEASE);
  }
  NoMemory(const NoMemory&) = delete;
  NoMemory& operator=(const NoMemory&) = delete;

 private:
  static constexpr SIZE_T kLargest = 1U << 30;
  static constexpr SIZE_T kSmallest = 1U << 19;

  std::vector<void*> blocks_;
};
