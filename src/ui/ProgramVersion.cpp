#include "ui/ProgramVersion.h"

#include <windows.h>

#include <cstring>

namespace ui {
namespace {

// The fixed part of the version resource follows the header's key, on a 32-bit boundary, and begins
// with this signature.
const VS_FIXEDFILEINFO* FixedInfo(const void* resource, DWORD size) {
  constexpr DWORD kSignature = VS_FFI_SIGNATURE;
  const auto* const bytes = static_cast<const char*>(resource);
  for (DWORD at = 0; at + sizeof(VS_FIXEDFILEINFO) <= size; at += sizeof(DWORD)) {
    if (std::memcmp(bytes + at, &kSignature, sizeof kSignature) == 0) {
      return reinterpret_cast<const VS_FIXEDFILEINFO*>(bytes + at);
    }
  }
  return nullptr;
}

}  // namespace

std::wstring VersionTextOf(std::uint32_t major, std::uint32_t minor, std::uint32_t revision) {
  return std::to_wstring(major) + L"." + std::to_wstring(minor) + std::to_wstring(revision);
}

std::wstring ProgramVersionText() {
  const HRSRC found = FindResourceW(nullptr, MAKEINTRESOURCEW(VS_VERSION_INFO), RT_VERSION);
  const HGLOBAL loaded = found == nullptr ? nullptr : LoadResource(nullptr, found);
  const void* const resource = loaded == nullptr ? nullptr : LockResource(loaded);
  const VS_FIXEDFILEINFO* const info =
      resource == nullptr ? nullptr : FixedInfo(resource, SizeofResource(nullptr, found));
  if (info == nullptr) return VersionTextOf(0, 0, 0);
  return VersionTextOf(HIWORD(info->dwProductVersionMS), LOWORD(info->dwProductVersionMS),
                       HIWORD(info->dwProductVersionLS));
}

}  // namespace ui
