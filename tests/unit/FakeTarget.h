// A control, its process and a session that record their calls and answer what a test wants.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "FakeSession.h"
#include "extract/ControlAccess.h"

template <typename Value>
unsigned AsNumber(Value value) {
  if constexpr (std::is_pointer_v<Value>) {
    return reinterpret_cast<std::uintptr_t>(value);
  } else {
    return static_cast<unsigned>(value);
  }
}

// "name 1 2a": numbers and addresses in hexadecimal.
template <typename... Values>
std::string CallText(std::string name, Values... values) {
  const auto append = [&](unsigned number) {
    char digits[16];
    std::snprintf(digits, sizeof digits, " %x", number);
    name += digits;
  };
  (append(AsNumber(values)), ...);
  return name;
}

// The memory of a target process, which is really this process's own.
class FakeMemory : public MyMapView::MemoryCalls {
 public:
  HANDLE OpenProcess(DWORD rights, BOOL inherit, DWORD processId) override {
    calls.push_back(CallText("OpenProcess", rights, inherit, processId));
    if (rights == PROCESS_QUERY_LIMITED_INFORMATION) return mayQuery ? Number(0x99) : nullptr;
    if (!opens) return nullptr;
    ++openHandles;
    return Number(0x50 + openHandles);
  }
  BOOL CloseHandle(HANDLE handle) override {
    calls.push_back(CallText("CloseHandle", handle));
    return TRUE;
  }
  void* VirtualAllocEx(HANDLE process, void* address, SIZE_T size, DWORD type,
                       DWORD protection) override {
    calls.push_back(CallText("VirtualAllocEx", process, address, size, type, protection));
    if (static_cast<int>(blocks.size()) >= mostBlocks) return nullptr;
    blocks.push_back(std::make_unique<char[]>(std::max<SIZE_T>(size, 4096)));
    return placeOfBlock == nullptr ? blocks.back().get() : placeOfBlock;
  }
  BOOL VirtualFreeEx(HANDLE process, void* address, SIZE_T size, DWORD type) override {
    calls.push_back(CallText("VirtualFreeEx", process, BlockNumber(address), size, type));
    return FALSE;
  }
  BOOL WriteProcessMemory(HANDLE, void* address, const void* data, SIZE_T size) override {
    calls.push_back(CallText("Write", BlockNumber(address), size));
    if (lost) return FALSE;
    std::memcpy(address, data, size);
    return TRUE;
  }
  BOOL ReadProcessMemory(HANDLE, const void* address, void* data, SIZE_T size) override {
    calls.push_back(CallText("Read", BlockNumber(address), size));
    // A control may answer with any address.
    return !lost && ::ReadProcessMemory(::GetCurrentProcess(), address, data, size, nullptr);
  }
  BOOL NtWow64ReadVirtualMemory64(HANDLE, std::uint64_t address, void* data, SIZE_T size) override {
    if (address < farAddress || address - farAddress + size > farText.size() * sizeof(wchar_t)) {
      return FALSE;
    }
    std::memcpy(data, reinterpret_cast<const char*>(farText.data()) + (address - farAddress), size);
    return TRUE;
  }

  HANDLE OpenFileMappingA(DWORD access, BOOL inherit, const char* name) override {
    calls.push_back(CallText(std::string("OpenFileMapping ") + name, access, inherit));
    return mappingExists ? Number(0x70) : nullptr;
  }
  HANDLE CreateFileMappingA(HANDLE file, SECURITY_ATTRIBUTES* security, DWORD protection,
                            DWORD sizeHigh, DWORD sizeLow, const char* name) override {
    calls.push_back(CallText(std::string("CreateFileMapping ") + name, file, security->nLength,
                             security->lpSecurityDescriptor, security->bInheritHandle, protection,
                             sizeHigh, sizeLow));
    return creates ? Number(0x71) : nullptr;
  }
  void* MapViewOfFile(HANDLE mapping, DWORD access, DWORD offsetHigh, DWORD offsetLow,
                      SIZE_T size) override {
    calls.push_back(CallText("MapViewOfFile", mapping, access, offsetHigh, offsetLow, size));
    if (!maps) return nullptr;
    blocks.push_back(std::make_unique<char[]>(4096));
    std::memset(blocks.back().get(), 0x7F, 4096);
    return blocks.back().get();
  }
  BOOL FlushViewOfFile(const void* view, SIZE_T size) override {
    calls.push_back(CallText("FlushViewOfFile", BlockNumber(view), size));
    return flushes;
  }
  BOOL UnmapViewOfFile(const void* view) override {
    unmapped = view;
    calls.push_back("UnmapViewOfFile");
    return FALSE;
  }

  BOOL GetVersionExA(OSVERSIONINFOA* version) override {
    versionSize = version->dwOSVersionInfoSize;
    version->dwPlatformId = platform;
    return versionKnown;
  }
  HMODULE GetModuleHandleA(const char* module) override {
    askedModule = module;
    return reinterpret_cast<HMODULE>(Number(0x60));
  }
  FARPROC GetProcAddress(HMODULE, const char* procedure) override {
    askedProcedure = procedure;
    // Through void*, because the compiler warns of a direct cast between function types.
    return knowsEmulation ? reinterpret_cast<FARPROC>(reinterpret_cast<void*>(AnswerEmulation))
                          : nullptr;
  }
  HANDLE GetCurrentProcess() override { return Number(0x44); }

  // The number of the block, from 0; 0xbad for any other address.
  std::uintptr_t BlockNumber(const void* address) const {
    for (std::size_t i = 0; i < blocks.size(); ++i) {
      if (blocks[i].get() == address) return i;
    }
    return 0xbad;
  }

  // The system is a 64-bit one, and the target's process is of that kind.
  void Be64BitSystem(bool targetIs64) {
    knowsEmulation = true;
    selfEmulated = TRUE;
    targetEmulated = !targetIs64;
  }

  std::vector<std::string> calls;
  std::vector<std::unique_ptr<char[]>> blocks;
  unsigned openHandles = 0;
  bool opens = true;
  bool mayQuery = true;
  int mostBlocks = 100;
  void* placeOfBlock = nullptr;  // what the target says instead of where a block is
  std::uint64_t farAddress = 0;  // where a 64-bit target has this text
  std::wstring farText;
  bool lost = false;
  bool mappingExists = false;
  bool creates = true;
  bool maps = true;
  BOOL flushes = TRUE;
  const void* unmapped = nullptr;
  DWORD platform = VER_PLATFORM_WIN32_NT;
  BOOL versionKnown = TRUE;
  DWORD versionSize = 0;
  bool knowsEmulation = false;
  inline static BOOL emulationKnown = TRUE;
  inline static BOOL selfEmulated = FALSE;
  inline static BOOL targetEmulated = FALSE;
  std::string askedModule;
  std::string askedProcedure;

  FakeMemory() {
    emulationKnown = TRUE;
    selfEmulated = targetEmulated = FALSE;
  }

 private:
  static HANDLE Number(std::uintptr_t number) { return reinterpret_cast<HANDLE>(number); }

  static BOOL WINAPI AnswerEmulation(HANDLE process, BOOL* emulated) {
    *emulated = process == Number(0x44) ? selfEmulated : targetEmulated;
    return emulationKnown;
  }
};

// A control in this process that answers as the test says; it can use the pointers in messages.
class FakeMessages : public extract::ControlMessages {
 public:
  struct Sent {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
  };

  std::int32_t Send(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) override {
    sent.push_back({hwnd, message, wParam, lParam});
    return answer(message, wParam, lParam);
  }
  DWORD ProcessOf(HWND hwnd) override {
    askedProcessOf = hwnd;
    return 77;
  }
  DWORD StyleOf(HWND) override { return style; }

  int Count(UINT message) const {
    int count = 0;
    for (const Sent& one : sent) count += one.message == message ? 1 : 0;
    return count;
  }

  std::function<std::int32_t(UINT, WPARAM, LPARAM)> answer = [](UINT, WPARAM, LPARAM) { return 0; };
  std::vector<Sent> sent;
  DWORD style = 0;
  HWND askedProcessOf = nullptr;
};

// Everything one reader needs.
struct FakeTarget {
  FakeMemory memory;
  FakeMessages messages;
  FakeSession capture;
  std::wstring method = L"(untouched)";
  const HWND hwnd = capture.target;

  extract::ControlAccess Access() { return {messages, memory}; }
};
