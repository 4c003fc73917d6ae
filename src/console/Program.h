// The program from its arguments to its exit code.
#pragma once

#include <span>
#include <string>

namespace console {

// words: of the command line, without the program's name. Returns the exit code, or ends the
// process when a window does not answer in time.
int Run(std::span<const std::wstring> words);

}  // namespace console
