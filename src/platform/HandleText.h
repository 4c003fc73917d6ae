// Window handles as the numbers that users see.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

// The handle as a signed 32-bit decimal number (odd, and stays: docs/ODDITIES.md), and as
// upper-case hexadecimal digits.
std::wstring DecimalHandle(HWND hwnd);
std::wstring HexHandle(HWND hwnd);

// Hexadecimal when the setting "win handle" is "hex", else decimal.
std::wstring ShownHandle(HWND hwnd, std::wstring_view winHandle);

}  // namespace platform
