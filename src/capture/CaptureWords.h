// The short texts of a capture, as pure functions.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "settings/Settings.h"

namespace capture {

// What lblMsg shows during a report.
constexpr std::wstring_view kCapturing = L"取得中・・・・";

// x right-aligned in 4 characters, "-", y right-aligned in 3; longer numbers are not cut. Odd, and
// stays: docs/ODDITIES.md.
std::wstring FormatMousePosition(POINT point);

// hotkey & "で停止", with a second line that names the action test when actionTest is 1, 2 or 3.
std::wstring StopHint(std::wstring_view hotkey, std::int32_t actionTest,
                      std::wstring_view actionKeyName);

// The integer nearest to the distance of two points. Not used here: for the other programs of this
// family.
std::int32_t PointDistance(POINT p1, POINT p2);

// Whether the first word of the command line is "debug", ignoring case.
bool AsksForDebugMode(std::wstring_view commandLine);

// Whether a capture starts with the program: with the setting "auto start", unless the whole
// command line, without blanks at its ends, is "no_start". Odd, and stays: docs/ODDITIES.md.
bool StartsByItself(const settings::Settings& settings, std::wstring_view commandLine);

}  // namespace capture
