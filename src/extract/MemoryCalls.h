// The system calls behind the memory of other processes, one method per call. Each method makes the
// call of its name; tests override them to record the arguments and to choose the answers.
#pragma once

#include <windows.h>

#include "platform/Interface.h"

namespace MyMapView {

class MemoryCalls : public platform::Interface {
 public:
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

// The real calls.
MemoryCalls& SystemMemoryCalls();

}  // namespace MyMapView
