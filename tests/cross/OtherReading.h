// Reads the items of a control by other means than the program: wide messages and a block of its
// own, of 32-bit targets only.
#pragma once

#include <windows.h>

#include <string>

namespace cross {

// The name of the kind of control (fixture/Controls.cpp) that windows of this class are; empty for
// other classes.
std::string KindOfClass(const std::string& className);

// What a reading of the control gives, as a 32-bit system reads it.
std::wstring ReadOtherwise(const std::string& kind, HWND control);

}  // namespace cross
