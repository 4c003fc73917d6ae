// Reads the items of a control in another way than the program: by wide messages and its own block.
#pragma once

#include <windows.h>

#include <string>

namespace cross {

// The name of the kind of control (fixture/Controls.cpp) that windows of this class are; empty for
// other classes.
std::string KindOfClass(const std::string& className);

bool IsIn64BitProcess(HWND window);

// What a reading of the control gives. A list view must be one of a 32-bit process.
std::wstring ReadOtherwise(const std::string& kind, HWND control);

}  // namespace cross
