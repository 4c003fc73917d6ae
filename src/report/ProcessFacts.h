// The program that a window belongs to.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace report {

struct ProcessFacts {
  DWORD id = 0;                  // 0 when the window is gone
  std::wstring file;             // with its folder; empty when it may not be asked
  std::optional<bool> is64;      // nothing when that cannot be found out
  std::optional<bool> elevated;  // runs as administrator; likewise
};

ProcessFacts ReadProcessFacts(HWND hwnd);

}  // namespace report
