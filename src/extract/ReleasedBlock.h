// A block of memory in the process of a control that is really given back: for every way of
// reading beyond the first ones, whose blocks stay behind (TargetBlock).
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "extract/ControlAccess.h"

namespace extract {

class ReleasedBlock {
 public:
  // size in bytes. Without a block on systems without memory in other processes, when the process
  // cannot be used, and when it has no room below 2 GB: a larger address would reach a 64-bit
  // process as another one.
  ReleasedBlock(MyMapView::MemoryCalls& calls, DWORD processId, SIZE_T size);
  ~ReleasedBlock();
  ReleasedBlock(const ReleasedBlock&) = delete;
  ReleasedBlock& operator=(const ReleasedBlock&) = delete;

  bool IsReady() const { return address_ != nullptr; }

  // In the target; use it only when the block is ready.
  std::uint32_t Address() const;

  // From the block's start. Throw TargetLost when the target cannot be written to or read from.
  void Write(const void* data, SIZE_T size);
  void Read(void* data, SIZE_T size) const;

  // Whether the target has readable memory at that address.
  bool IsReadable(std::uint64_t address) const;

  // The text at an address of the target, in UTF-16, up to its first zero character; cut where the
  // memory or 16 Mi characters end, and empty when it cannot be read.
  std::wstring TextAt(std::uint64_t address) const;

 private:
  // At an address that only a 64-bit process has, too.
  bool ReadAt(std::uint64_t address, void* data, SIZE_T size) const;

  MyMapView::MemoryCalls& calls_;
  HANDLE process_ = nullptr;
  void* address_ = nullptr;
};

}  // namespace extract
