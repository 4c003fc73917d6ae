// The system calls behind the memory of other processes, one method per call. Each method makes the
// call of its name; tests override them to record the arguments and to choose the answers.
#pragma once

#include <windows.h>

#include <cstdint>

#include "platform/Interface.h"

namespace MyMapView {

class MemoryCalls : public platform::Interface {
 public:
  virtual HANDLE OpenProcess(DWORD rights, BOOL inherit, DWORD processId) {
    return ::OpenProcess(rights, inherit, processId);
  }
  virtual BOOL CloseHandle(HANDLE handle) { return ::CloseHandle(handle); }
  virtual void* VirtualAllocEx(HANDLE process, void* address, SIZE_T size, DWORD type,
                               DWORD protection) {
    return ::VirtualAllocEx(process, address, size, type, protection);
  }
  virtual BOOL VirtualFreeEx(HANDLE process, void* address, SIZE_T size, DWORD type) {
    return ::VirtualFreeEx(process, address, size, type);
  }
  virtual BOOL WriteProcessMemory(HANDLE process, void* address, const void* data, SIZE_T size) {
    return ::WriteProcessMemory(process, address, data, size, nullptr);
  }
  virtual BOOL ReadProcessMemory(HANDLE process, const void* address, void* data, SIZE_T size) {
    return ::ReadProcessMemory(process, address, data, size, nullptr);
  }

  // The same at any address of a 64-bit process. NtWow64ReadVirtualMemory64 is a system call of
  // 64-bit systems alone; FALSE where there is none.
  virtual BOOL NtWow64ReadVirtualMemory64(HANDLE process, std::uint64_t address, void* data,
                                          SIZE_T size);

  virtual HANDLE OpenFileMappingA(DWORD access, BOOL inherit, const char* name) {
    return ::OpenFileMappingA(access, inherit, name);
  }
  virtual HANDLE CreateFileMappingA(HANDLE file, SECURITY_ATTRIBUTES* security, DWORD protection,
                                    DWORD sizeHigh, DWORD sizeLow, const char* name) {
    return ::CreateFileMappingA(file, security, protection, sizeHigh, sizeLow, name);
  }
  virtual void* MapViewOfFile(HANDLE mapping, DWORD access, DWORD offsetHigh, DWORD offsetLow,
                              SIZE_T size) {
    return ::MapViewOfFile(mapping, access, offsetHigh, offsetLow, size);
  }
  virtual BOOL FlushViewOfFile(const void* view, SIZE_T size) {
    return ::FlushViewOfFile(view, size);
  }
  virtual BOOL UnmapViewOfFile(const void* view) { return ::UnmapViewOfFile(view); }

  virtual BOOL GetVersionExA(OSVERSIONINFOA* version) { return ::GetVersionExA(version); }
  virtual HMODULE GetModuleHandleA(const char* module) { return ::GetModuleHandleA(module); }
  virtual FARPROC GetProcAddress(HMODULE module, const char* procedure) {
    return ::GetProcAddress(module, procedure);
  }
  virtual HANDLE GetCurrentProcess() { return ::GetCurrentProcess(); }
};

// The real calls.
MemoryCalls& SystemMemoryCalls();

}  // namespace MyMapView
