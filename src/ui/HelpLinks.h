// The two addresses that the foot of the main window links to.
#pragma once

#include <filesystem>
#include <string>

namespace ui {

// The help page, and the home page: as the build sets them, else the page help\index.html beside
// the program and its section about the program.
std::wstring HelpAddress(const std::filesystem::path& programFolder);
std::wstring HomeAddress(const std::filesystem::path& programFolder);

}  // namespace ui
