// The two addresses that the foot of the main window links to.
#pragma once

#include <string>

namespace ui {

// The help page, and the home page: as the build sets them, else the page help\index.html beside
// the program and its section about the program.
std::wstring HelpAddress(const std::wstring& programFolder);
std::wstring HomeAddress(const std::wstring& programFolder);

}  // namespace ui
