// A block of memory that the process of a control can access, for records and texts that pass
// between the control and a reader.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "extract/ControlAccess.h"
#include "extract/MyMapView.h"

namespace extract {

struct BlockSize {
  SIZE_T remote;           // bytes, in the target process
  const char* sharedName;  // of the mapping, on systems without memory in other processes
  SIZE_T released;         // the size that the release is called with
};

class TargetBlock {
 public:
  TargetBlock(MyMapView::MemoryCalls& calls, DWORD processId, const BlockSize& size);
  ~TargetBlock();
  TargetBlock(const TargetBlock&) = delete;
  TargetBlock& operator=(const TargetBlock&) = delete;

  // In the target; 0 when there is no block, and then nothing must be written or read.
  std::uint32_t Address() const;

  // Throw TargetLost when the target cannot be written to or read from.
  void Write(const void* data, SIZE_T size);
  void Read(void* data, SIZE_T size) const;

  // The block's first size bytes (256 at most), cut at the first zero byte, from the system code
  // page. Throws TargetLost.
  std::wstring ReadText(SIZE_T size) const;

 private:
  MyMapView::MemoryCalls& calls_;
  bool remote_;
  SIZE_T released_;
  HANDLE process_ = nullptr;
  void* address_ = nullptr;
};

}  // namespace extract
