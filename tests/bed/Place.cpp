#include "bed/Place.h"

#include <windows.h>

#include <string>

namespace bed {
namespace {

std::filesystem::path OwnFile() {
  std::wstring file(32768, L'\0');
  file.resize(GetModuleFileNameW(nullptr, file.data(), static_cast<DWORD>(file.size())));
  return file;
}

}  // namespace

std::filesystem::path Place(std::string_view name) {
  static const std::filesystem::path all = OwnFile().parent_path().parent_path().parent_path();
  return (all / std::filesystem::path(name)).make_preferred();
}

}  // namespace bed
