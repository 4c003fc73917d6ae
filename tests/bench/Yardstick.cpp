#include "Yardstick.h"

#include <windows.h>

namespace bench {

std::filesystem::path Yardstick(const wchar_t* name) {
  wchar_t own[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, own, MAX_PATH);
  return std::filesystem::path(own).parent_path() / name;
}

}  // namespace bench
