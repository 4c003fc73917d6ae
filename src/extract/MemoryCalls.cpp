#include "extract/MemoryCalls.h"

namespace MyMapView {

BOOL MemoryCalls::NtWow64ReadVirtualMemory64(HANDLE process, std::uint64_t address, void* data,
                                             SIZE_T size) {
  using Function = LONG(NTAPI*)(HANDLE, std::uint64_t, void*, std::uint64_t, std::uint64_t*);
  const FARPROC found = GetProcAddress(GetModuleHandleA("ntdll"), "NtWow64ReadVirtualMemory64");
  if (found == nullptr) return FALSE;
  // Through void*, because the compiler warns of a direct cast between function types.
  const auto read = reinterpret_cast<Function>(reinterpret_cast<void*>(found));
  return read(process, address, data, size, nullptr) >= 0;
}

MemoryCalls& SystemMemoryCalls() {
  static MemoryCalls calls;
  return calls;
}

}  // namespace MyMapView
