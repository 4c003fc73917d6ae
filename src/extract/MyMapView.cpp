#include "extract/MyMapView.h"

#include <cstring>

namespace MyMapView {
namespace {

// MEM_RELEASE, sign-extended from 16 bits, with which the release fails. Odd, and stays:
// docs/ODDITIES.md.
constexpr DWORD kReleaseWidened = 0xFFFF8000;

using IsWow64ProcessFunction = BOOL(WINAPI*)(HANDLE, BOOL*);

// Whether that process is a 32-bit one on a 64-bit system; nothing when the system has no such
// function or the query fails.
std::optional<bool> IsEmulated(MemoryCalls& calls, HANDLE process) {
  const FARPROC found = calls.GetProcAddress(calls.GetModuleHandleA("kernel32"), "IsWow64Process");
  if (found == nullptr) return std::nullopt;
  // Through void*, because the compiler warns of a direct cast between function types.
  const auto ask = reinterpret_cast<IsWow64ProcessFunction>(reinterpret_cast<void*>(found));
  BOOL emulated = FALSE;
  if (!ask(process, &emulated)) return std::nullopt;
  return emulated != FALSE;
}

}  // namespace

void* AllocRemote(MemoryCalls& calls, DWORD processId, SIZE_T size, HANDLE& outProcess) {
  outProcess = calls.OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE,
                                 processId);
  if (outProcess == nullptr) return nullptr;
  return calls.VirtualAllocEx(outProcess, nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
}

void FreeRemote(MemoryCalls& calls, HANDLE process, void* address, SIZE_T size) {
  calls.VirtualFreeEx(process, address, size, kReleaseWidened);
  calls.CloseHandle(process);
}

bool IsNT(MemoryCalls& calls) {
  OSVERSIONINFOA version = {};
  static_assert(sizeof version == 148);
  version.dwOSVersionInfoSize = sizeof version;
  return calls.GetVersionExA(&version) && version.dwPlatformId == VER_PLATFORM_WIN32_NT;
}

bool IsWin64(MemoryCalls& calls) {
  return IsEmulated(calls, calls.GetCurrentProcess()).value_or(false);
}

std::optional<bool> IsProcess64(MemoryCalls& calls, DWORD processId) {
  if (!IsWin64(calls)) return false;
  const HANDLE process = calls.OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processId);
  if (process == nullptr) return std::nullopt;
  std::optional<bool> result = IsEmulated(calls, process);
  calls.CloseHandle(process);
  if (result) result = !*result;
  return result;
}

bool MakeFileMap(MemoryCalls& calls, const char* name, HANDLE& outMapping, void*& outView) {
  outView = nullptr;
  outMapping = calls.OpenFileMappingA(FILE_MAP_ALL_ACCESS, FALSE, name);
  if (outMapping != nullptr) {
    outView = calls.MapViewOfFile(outMapping, FILE_MAP_ALL_ACCESS, 0, 0, 0);
    return outView != nullptr;
  }

  SECURITY_ATTRIBUTES security = {sizeof security, nullptr, FALSE};
  static_assert(sizeof security == 12);
  outMapping = calls.CreateFileMappingA(INVALID_HANDLE_VALUE, &security,
                                        PAGE_READWRITE | SEC_COMMIT, 0, kSharedSize, name);
  if (outMapping == nullptr) return false;
  outView = calls.MapViewOfFile(outMapping, FILE_MAP_ALL_ACCESS, 0, 0, 0);
  if (outView == nullptr) return false;
  std::memset(outView, 0, kSharedSize);
  return calls.FlushViewOfFile(outView, kSharedSize) != FALSE;
}

void* OpenShared(MemoryCalls& calls, const char* name) {
  HANDLE mapping = nullptr;
  void* view = nullptr;
  return MakeFileMap(calls, name, mapping, view) ? view : nullptr;
}

void CloseShared(MemoryCalls& calls, HANDLE mapping, void*& view) {
  // The address of the variable, not the view. Odd, and stays: docs/ODDITIES.md.
  calls.UnmapViewOfFile(&view);
  calls.CloseHandle(mapping);
}

}  // namespace MyMapView
