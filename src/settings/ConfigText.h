// Conf.txt as text: pure functions between its lines and the values.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "settings/ConfigKeys.h"

namespace settings {

// Sets every value that has a default; the others stay as they are.
void SetDefaults(const ScreenTwips& screen, ConfigValues& values);

// Stores each line of text that is one known key, one "=" and a value; every other line is ignored.
// A later line wins. Lines end with CR LF, LF or CR.
void ParseConfig(std::wstring_view text, ConfigValues& values);

// The lines of the file, in its order, each with its CR LF; without keys that are written only
// while they are not 0.
std::vector<std::wstring> ConfigLines(const ConfigValues& values);

}  // namespace settings
