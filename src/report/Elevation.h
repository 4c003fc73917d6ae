// Whether another program has rights that this one lacks.
#pragma once

#include <windows.h>

namespace report {

// Whether the window's program runs as administrator and this one does not: Windows then keeps the
// messages of this program from it. False when that cannot be found out.
bool RunsAboveThisProgram(HWND hwnd);

}  // namespace report
