// Memory that a process of another program can see, and what kind of system and process this is.
// Nothing here shows a message or raises.
#pragma once

#include <windows.h>

#include <optional>

#include "extract/MemoryCalls.h"

namespace MyMapView {

// size bytes, readable and writable, in that process. Returns their address there, null when the
// process cannot be opened or has no memory. outProcess receives the process's handle in any case;
// it is the caller's (null when the process cannot be opened).
void* AllocRemote(MemoryCalls& calls, DWORD processId, SIZE_T size, HANDLE& outProcess);

// Gives the block up and closes the handle. The block itself stays in the target until that
// process ends: a program that still answers a late message then writes into memory of nobody
// else's.
void FreeRemote(MemoryCalls& calls, HANDLE process, void* address, SIZE_T size);

// Whether this is a system of the NT family; false also when the system does not tell.
bool IsNT(MemoryCalls& calls);

// Whether the system is a 64-bit one, which this 32-bit program sees from being run in emulation.
bool IsWin64(MemoryCalls& calls);

// Whether that process is a 64-bit one; nothing when the process may not be asked.
std::optional<bool> IsProcess64(MemoryCalls& calls, DWORD processId);

// Every shared block has this size, whatever size its name says.
constexpr DWORD kSharedSize = 1024;

// A block that all processes of the older family see at the same address: opens the mapping of
// that name, or makes one filled with zeros. False on any failure.
bool MakeFileMap(MemoryCalls& calls, const char* name, HANDLE& outMapping, void*& outView);

// The view of the mapping of that name; null on failure.
void* OpenShared(MemoryCalls& calls, const char* name);

// Closes the mapping. The view stays mapped until this program ends, for the next reader that asks
// for the same name.
void CloseShared(MemoryCalls& calls, HANDLE mapping, void*& view);

}  // namespace MyMapView
