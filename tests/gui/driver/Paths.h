// Where the tested programs are and where tests may write.
#pragma once

#include <filesystem>

namespace gui {

std::filesystem::path ProgramFile();
std::filesystem::path FixtureFile();

// A folder of the running test's own, emptied; its name holds the test's name.
std::filesystem::path FreshFolder();

// build/<preset>/screenshots, created when missing.
std::filesystem::path ScreenshotFolder();

// "Suite.Test" of the running test, with characters that no file name can hold replaced.
std::string TestName();

}  // namespace gui
