#include "extract/MemoryCalls.h"

namespace MyMapView {

HANDLE MemoryCalls::OpenProcess(DWORD rights, BOOL inherit, DWORD processId) {
  return ::OpenProcess(rights, inherit, processId);
}

BOOL MemoryCalls::CloseHandle(HANDLE handle) { return ::CloseHandle(handle); }

void* MemoryCalls::VirtualAllocEx(HANDLE process, void* address, SIZE_T size, DWORD type,
                                  DWORD protection) {
  return ::VirtualAllocEx(process, address, size, type, protection);
}

BOOL MemoryCalls::VirtualFreeEx(HANDLE process, void* address, SIZE_T size, DWORD type) {
  return ::VirtualFreeEx(process, address, size, type);
}

BOOL MemoryCalls::WriteProcessMemory(HANDLE process, void* address, const void* data, SIZE_T size) {
  return ::WriteProcessMemory(process, address, data, size, nullptr);
}

BOOL MemoryCalls::ReadProcessMemory(HANDLE process, const void* address, void* data, SIZE_T size) {
  return ::ReadProcessMemory(process, address, data, size, nullptr);
}

HANDLE MemoryCalls::OpenFileMappingA(DWORD access, BOOL inherit, const char* name) {
  return ::OpenFileMappingA(access, inherit, name);
}

HANDLE MemoryCalls::CreateFileMappingA(HANDLE file, SECURITY_ATTRIBUTES* security, DWORD protection,
                                       DWORD sizeHigh, DWORD sizeLow, const char* name) {
  return ::CreateFileMappingA(file, security, protection, sizeHigh, sizeLow, name);
}

void* MemoryCalls::MapViewOfFile(HANDLE mapping, DWORD access, DWORD offsetHigh, DWORD offsetLow,
                                 SIZE_T size) {
  return ::MapViewOfFile(mapping, access, offsetHigh, offsetLow, size);
}

BOOL MemoryCalls::FlushViewOfFile(const void* view, SIZE_T size) {
  return ::FlushViewOfFile(view, size);
}

BOOL MemoryCalls::UnmapViewOfFile(const void* view) { return ::UnmapViewOfFile(view); }

BOOL MemoryCalls::GetVersionExA(OSVERSIONINFOA* version) { return ::GetVersionExA(version); }

HMODULE MemoryCalls::GetModuleHandleA(const char* module) { return ::GetModuleHandleA(module); }

FARPROC MemoryCalls::GetProcAddress(HMODULE module, const char* procedure) {
  return ::GetProcAddress(module, procedure);
}

HANDLE MemoryCalls::GetCurrentProcess() { return ::GetCurrentProcess(); }

MemoryCalls& SystemMemoryCalls() {
  static MemoryCalls calls;
  return calls;
}

}  // namespace MyMapView
