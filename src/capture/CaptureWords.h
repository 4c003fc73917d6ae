// The short texts of a capture, as pure functions.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace capture {

// x right-aligned in 4 characters, "-", y right-aligned in 3; longer numbers stand whole.
std::wstring FormatMousePosition(POINT point);

// hotkey & "で停止", with a second line that names the action test when actionTest is 1, 2 or 3.
std::wstring StopHint(std::wstring_view hotkey, std::int32_t actionTest,
                      std::wstring_view actionKeyName);

// The integer nearest to the distance of two points.
std::int32_t PointDistance(POINT p1, POINT p2);

// Whether the first word of the command line is "debug", ignoring case.
bool AsksForDebugMode(std::wstring_view commandLine);

// Whether the whole command line, blanks at its ends aside, is "no_start".
bool ForbidsAutoStart(std::wstring_view commandLine);

// The handle as decimal digits, signed as a 32-bit number; and as upper-case hexadecimal digits.
std::wstring DecimalHandle(HWND hwnd);
std::wstring HexHandle(HWND hwnd);

// One of the two, as the setting "win handle" says: "hex", and everything else is decimal.
std::wstring ShownHandle(HWND hwnd, std::wstring_view winHandle);

}  // namespace capture
