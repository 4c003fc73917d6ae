// The sound at the automatic end of a capture.
#pragma once

#include <string>

namespace capture {

// The file of that name beside the program, else the one that came with Windows; empty when there
// is neither. Folders are without a trailing backslash.
std::wstring ChimePath(const std::wstring& file, const std::wstring& programFolder,
                       const std::wstring& windowsFolder);

// Plays that file once to its end, and pumps. Without a file nothing happens.
void PlayChime(const std::wstring& file);

}  // namespace capture
