// Conf.txt as text: pure functions between its lines and the values.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "settings/ConfigKeys.h"

namespace settings {

// The number that text begins with, rounded to the nearest integer, halves to the even neighbour:
// blanks, a sign, digits, a fraction, and nothing else ("12abc" gives 12, "12.5" gives 12, "13.5"
// gives 14). A text that does not begin with a number gives 0. Clamped to 32 bits.
std::int32_t LeadingNumber(std::wstring_view text);

// Sets every value that has a default; the others stay as they are.
void SetDefaults(const ScreenTwips& screen, ConfigValues& values);

// Takes over each line of text that is one known key, one "=" and a value; every other line is
// ignored. A later line wins. Lines end with CR LF, LF or CR.
void ParseConfig(std::wstring_view text, ConfigValues& values);

// The lines of the file, in its order, each with its CR LF.
std::vector<std::wstring> ConfigLines(const ConfigValues& values);

}  // namespace settings
