#include "Footprint.h"

#include <windows.h>

#include <cstdint>
#include <memory>
#include <string_view>
#include <type_traits>
#include <vector>

#include "driver/Text.h"

namespace gui {
namespace {

using Stamps = std::map<std::string, std::string>;

struct RegCloseKeyCall {
  void operator()(HKEY key) const { RegCloseKey(key); }
};
using OwnedKey = std::unique_ptr<std::remove_pointer_t<HKEY>, RegCloseKeyCall>;

struct FindCloseCall {
  void operator()(HANDLE search) const { FindClose(search); }
};
using OwnedSearch = std::unique_ptr<std::remove_pointer_t<HANDLE>, FindCloseCall>;

std::string Stamp(const FILETIME& written) {
  return std::to_string(written.dwHighDateTime) + "." + std::to_string(written.dwLowDateTime);
}

void AddFiles(const std::wstring& folder, Stamps& stamps) {
  WIN32_FIND_DATAW found = {};
  const HANDLE first = FindFirstFileW((folder + L"\\*").c_str(), &found);
  if (first == INVALID_HANDLE_VALUE) return;
  const OwnedSearch search(first);
  do {
    const std::wstring_view name = found.cFileName;
    if (name == L"." || name == L"..") continue;
    const std::wstring path = folder + L"\\" + found.cFileName;
    stamps[ToUtf8(path)] = Stamp(found.ftLastWriteTime) + " " + std::to_string(found.nFileSizeLow) +
                           " " + std::to_string(found.dwFileAttributes);
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) AddFiles(path, stamps);
  } while (FindNextFileW(search.get(), &found));
}

// A key's time changes when one of its values or the list of its subkeys is written.
void AddKeys(HKEY parent, const std::wstring& name, const std::string& path, Stamps& stamps) {
  HKEY opened = nullptr;
  if (RegOpenKeyExW(parent, name.c_str(), 0, KEY_READ | KEY_WOW64_64KEY, &opened) !=
      ERROR_SUCCESS) {
    return;
  }
  const OwnedKey key(opened);
  DWORD subkeys = 0;
  DWORD longest = 0;
  DWORD values = 0;
  FILETIME written = {};
  if (RegQueryInfoKeyW(opened, nullptr, nullptr, nullptr, &subkeys, &longest, nullptr, &values,
                       nullptr, nullptr, nullptr, &written) != ERROR_SUCCESS) {
    return;
  }
  stamps[path] = Stamp(written) + " " + std::to_string(values);
  std::vector<wchar_t> subkey(longest + 1);
  for (DWORD i = 0; i < subkeys; ++i) {
    DWORD length = longest + 1;
    if (RegEnumKeyExW(opened, i, subkey.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
        ERROR_SUCCESS) {
      continue;
    }
    const std::wstring child(subkey.data(), length);
    AddKeys(opened, child, path + "\\" + ToUtf8(child), stamps);
  }
}

void AddDifferences(const Stamps& before, const Stamps& now, std::set<std::string>& differences) {
  for (const auto& [path, stamp] : now) {
    const auto then = before.find(path);
    if (then == before.end() || then->second != stamp) differences.insert(path);
  }
  for (const auto& [path, stamp] : before) {
    if (!now.contains(path)) differences.insert(path);
  }
}

}  // namespace

Footprint Footprint::Now(const std::filesystem::path& folder) {
  Footprint footprint;
  AddFiles(L"C:", footprint.files_);
  AddFiles(folder.wstring(), footprint.files_);
  AddKeys(HKEY_LOCAL_MACHINE, L"", "HKLM", footprint.keys_);
  AddKeys(HKEY_USERS, L"", "HKU", footprint.keys_);
  return footprint;
}

std::set<std::string> Footprint::ChangesSince(const Footprint& before) const {
  std::set<std::string> differences;
  AddDifferences(before.files_, files_, differences);
  AddDifferences(before.keys_, keys_, differences);
  return differences;
}

}  // namespace gui
