// The system calls behind the memory of other processes, one method a call. The methods make the
// call of their name; tests override them to record the arguments and to answer as they like.
#pragma once

#include <windows.h>

namespace MyMapView {

class MemoryCalls {
 public:
  MemoryCalls() = default;
  MemoryCalls(const MemoryCalls&) = delete;
  MemoryCalls& operator=(const MemoryCalls&) = delete;
  virtual ~MemoryCalls() = default;

  virtual HANDLE OpenProcess(DWORD rights, BOOL inherit, DWORD processId);
  virtual BOOL CloseHandle(HANDLE handle);
  virtual void* VirtualAllocEx(HANDLE process, void* address, SIZE_T size, DWORD type,
                               DWORD protection);
  virtual BOOL VirtualFreeEx(HANDLE process, void* address, SIZE_T size, DWORD type);
  virtual BOOL WriteProcessMemory(HANDLE process, void* address, const void* data, SIZE_T size);
  virtual BOOL ReadProcessMemory(HANDLE process, const void* address, void* data, SIZE_T size);

  virtual HANDLE OpenFileMappingA(DWORD access, BOOL inherit, const char* name);
  virtual HANDLE CreateFileMappingA(HANDLE file, SECURITY_ATTRIBUTES* security, DWORD protection,
                                    DWORD sizeHigh, DWORD sizeLow, const char* name);
  virtual void* MapViewOfFile(HANDLE mapping, DWORD access, DWORD offsetHigh, DWORD offsetLow,
                              SIZE_T size);
  virtual BOOL FlushViewOfFile(const void* view, SIZE_T size);
  virtual BOOL UnmapViewOfFile(const void* view);

  virtual BOOL GetVersionExA(OSVERSIONINFOA* version);
  virtual HMODULE GetModuleHandleA(const char* module);
  virtual FARPROC GetProcAddress(HMODULE module, const char* procedure);
  virtual HANDLE GetCurrentProcess();
};

// The one that makes the calls.
MemoryCalls& SystemMemoryCalls();

}  // namespace MyMapView
