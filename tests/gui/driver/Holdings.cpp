#include "driver/Holdings.h"

#include <psapi.h>
#include <winternl.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <vector>

#include "driver/Owners.h"

namespace gui {
namespace {

// The counters for handles and objects that the system offers are 0 in Wine; its list of all
// handles, and the table of GDI objects that every process has, are correct.
void CountHandles(DWORD processId, Holdings& holdings) {
  struct Entry {
    std::uint32_t process;
    std::uint8_t type;
    std::uint8_t flags;
    std::uint16_t handle;
    std::uint32_t rest[2];
  };
  static_assert(sizeof(Entry) == 16);
  constexpr int kHandleInformation = 16;
  // An event of this process shows the type number of events.
  const OwnedHandle event(CreateEventW(nullptr, FALSE, FALSE, nullptr));
  std::vector<std::uint32_t> buffer(1U << 20);
  if (NtQuerySystemInformation(static_cast<SYSTEM_INFORMATION_CLASS>(kHandleInformation),
                               buffer.data(), static_cast<ULONG>(buffer.size() * 4),
                               nullptr) != 0) {
    holdings.handles = holdings.events = -1;
    return;
  }
  const auto* entries = reinterpret_cast<const Entry*>(buffer.data() + 1);
  const DWORD self = GetCurrentProcessId();
  const auto own = std::find_if(entries, entries + buffer[0], [&](const Entry& one) {
    return one.process == self &&
           one.handle == static_cast<std::uint16_t>(reinterpret_cast<UINT_PTR>(event.get()));
  });
  for (std::uint32_t i = 0; i < buffer[0]; ++i) {
    if (entries[i].process != processId) continue;
    ++(entries[i].type == own->type ? holdings.events : holdings.handles);
  }
  if (processId == self) --holdings.events;
}

bool ReadMemory(HANDLE process, std::uintptr_t address, void* bytes, std::size_t size) {
  SIZE_T read = 0;
  return ReadProcessMemory(process, reinterpret_cast<const void*>(address), bytes, size, &read) !=
             0 &&
         read == size;
}

int CountGdiObjects(HANDLE process) {
  struct Entry {
    std::uint8_t before[14];
    std::uint8_t type;  // 0: free
    std::uint8_t after[9];
  };
  static_assert(sizeof(Entry) == 24);
  constexpr std::size_t kEntries = 65536;
  constexpr std::uintptr_t kTableInProcess =
      0x94;  // where the process stores the address of its table

  PROCESS_BASIC_INFORMATION basic = {};
  if (NtQueryInformationProcess(process, ProcessBasicInformation, &basic, sizeof basic, nullptr) !=
      0) {
    return -1;
  }
  const auto environment = reinterpret_cast<std::uintptr_t>(basic.PebBaseAddress);
  std::uint32_t table = 0;
  std::vector<Entry> entries(kEntries);
  if (!ReadMemory(process, environment + kTableInProcess, &table, sizeof table) ||
      !ReadMemory(process, table, entries.data(), entries.size() * sizeof(Entry))) {
    return -1;
  }
  int count = 0;
  for (const Entry& entry : entries) count += entry.type != 0 ? 1 : 0;
  return count;
}

struct WindowCount {
  DWORD processId;
  int windows;
};

BOOL CALLBACK CountChild(HWND window, LPARAM count) {
  auto& counted = *reinterpret_cast<WindowCount*>(count);
  DWORD owner = 0;
  GetWindowThreadProcessId(window, &owner);
  if (owner == counted.processId) ++counted.windows;
  return TRUE;
}

BOOL CALLBACK CountWithChildren(HWND window, LPARAM count) {
  CountChild(window, count);
  EnumChildWindows(window, CountChild, count);
  return TRUE;
}

int CountWindows(DWORD processId) {
  WindowCount counted = {processId, 0};
  EnumWindows(CountWithChildren, reinterpret_cast<LPARAM>(&counted));
  // Message-only windows are found only here.
  for (HWND window = FindWindowExW(HWND_MESSAGE, nullptr, nullptr, nullptr); window != nullptr;
       window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) {
    CountChild(window, reinterpret_cast<LPARAM>(&counted));
  }
  return counted.windows;
}

double UsedMegabytes(HANDLE process) {
  PROCESS_MEMORY_COUNTERS counters = {};
  if (!K32GetProcessMemoryInfo(process, &counters, sizeof counters)) return -1;
  return static_cast<double>(counters.PagefileUsage) / (1 << 20);
}

}  // namespace

std::string Holdings::Text() const {
  char text[128] = {};
  std::snprintf(text, sizeof text, "handles %d, events %d, GDI objects %d, windows %d, %.1f MB",
                handles, events, gdiObjects, windows, megabytes);
  return text;
}

Holdings HoldingsOf(HANDLE process) {
  const DWORD id = GetProcessId(process);
  // First, because the first enumeration of windows makes the system load its drawing objects.
  const int windows = CountWindows(id);
  Holdings holdings;
  CountHandles(id, holdings);
  holdings.gdiObjects = CountGdiObjects(process);
  holdings.windows = windows;
  holdings.megabytes = UsedMegabytes(process);
  return holdings;
}

Holdings OwnHoldings() { return HoldingsOf(GetCurrentProcess()); }

bool IsWithin(const Holdings& before, const Holdings& now, const Allowance& allowance) {
  return now.handles <= before.handles + allowance.handles &&
         now.events <= before.events + allowance.events &&
         now.gdiObjects <= before.gdiObjects + allowance.gdiObjects &&
         now.windows <= before.windows + allowance.windows &&
         now.megabytes <= before.megabytes + allowance.megabytes;
}

}  // namespace gui
