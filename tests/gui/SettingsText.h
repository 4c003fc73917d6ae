// Texts of the settings file, as users find them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gui {

// The value after "key = " or "key= " in the lines of a written settings file; "(missing)" when no
// line begins so.
std::string ValueOf(const std::vector<std::string>& lines, std::string_view key);

}  // namespace gui
