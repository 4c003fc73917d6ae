// Whether another program has rights that this one lacks.
#pragma once

#include <windows.h>

#include <optional>

namespace report {

// Whether the window's program runs as administrator and this one does not: Windows then keeps the
// messages of this program from it. False when that cannot be found out.
bool RunsAboveThisProgram(HWND hwnd);

// Whether that process runs as administrator; nothing when that cannot be found out. A process
// whose rights may not be read counts as one.
std::optional<bool> IsElevated(HANDLE process);

}  // namespace report
