// A key of the registry for a test, deleted with its content afterwards.
#pragma once

#include <windows.h>

#include <map>
#include <string>

namespace cross {

class RegistryKey {
 public:
  RegistryKey(HKEY root, const std::wstring& path,
              const std::map<std::wstring, std::wstring>& values)
      : root_(root), path_(path) {
    HKEY key = nullptr;
    RegCreateKeyExW(root, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr);
    for (const auto& [name, text] : values) {
      RegSetValueExW(key, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                     static_cast<DWORD>(2 * (text.size() + 1)));
    }
    RegCloseKey(key);
  }
  ~RegistryKey() { RegDeleteTreeW(root_, path_.c_str()); }
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;

 private:
  HKEY root_;
  std::wstring path_;
};

}  // namespace cross
