// The programs in bench.exe's folder: the yardsticks and their targets.
#pragma once

#include <filesystem>

namespace bench {

// The path of the program of that file name.
std::filesystem::path Yardstick(const wchar_t* name);

}  // namespace bench
