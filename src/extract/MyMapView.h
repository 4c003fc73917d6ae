// Memory that the process of another program can access, and the kinds of system and process.
// Nothing here shows a message or throws.
#pragma once

#include <windows.h>

#include <optional>

#include "extract/MemoryCalls.h"

namespace MyMapView {

// size bytes, readable and writable, in that process. Returns their address there, null when the
// process cannot be opened or has no memory. outProcess always receives the process's handle, which
// the caller owns (null when the process cannot be opened).
void* AllocRemote(MemoryCalls& calls, DWORD processId, SIZE_T size, HANDLE& outProcess);

// Calls the release of the block and closes the handle. The block itself stays in the target until
// that process ends: docs/ODDITIES.md.
void FreeRemote(MemoryCalls& calls, HANDLE process, void* address, SIZE_T size);

// Whether this is a system of the NT family; false also when the query fails.
bool IsNT(MemoryCalls& calls);

// Whether the system is a 64-bit one: this 32-bit program then runs in emulation.
bool IsWin64(MemoryCalls& calls);

// Whether that process is a 64-bit one; nothing when the process cannot be queried.
std::optional<bool> IsProcess64(MemoryCalls& calls, DWORD processId);

// Every shared block has this size, whatever size its name says.
constexpr DWORD kSharedSize = 1024;

// A block that all processes of the older family see at the same address: opens the mapping of that
// name, or creates one filled with zeros. False on any failure.
bool MakeFileMap(MemoryCalls& calls, const char* name, HANDLE& outMapping, void*& outView);

// The view of the mapping of that name; null on failure.
void* OpenShared(MemoryCalls& calls, const char* name);

// Closes the mapping. The view stays mapped until this program ends, for the next reader that asks
// for the same name.
void CloseShared(MemoryCalls& calls, HANDLE mapping, void*& view);

}  // namespace MyMapView
