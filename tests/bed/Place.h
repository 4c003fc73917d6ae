// Where the files of the tests are: beside the running test program, so that they are found in the
// build folder and in the zip of the tests alike.
#pragma once

#include <filesystem>
#include <string_view>

namespace bed {

// The file or folder of that name, in ASCII and with "/", in the folder that holds "tests". Test
// programs are in tests/PART of it.
std::filesystem::path Place(std::string_view name);

}  // namespace bed
