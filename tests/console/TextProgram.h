// VelmoraText.exe, run from its first word to its exit code.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "driver/ChildProcess.h"

namespace console {

struct Ran {
  DWORD code = 0;
  std::string output;  // UTF-8
};

// Throws std::runtime_error when it does not end in time.
Ran RunText(std::string_view arguments,
            gui::ChildProcess::Output output = gui::ChildProcess::Output::kRead);

// The process itself, for a program that does not end by itself.
gui::ChildProcess StartText(std::string_view arguments);

// "--window HANDLE".
std::string OfWindow(HWND hwnd);

}  // namespace console
