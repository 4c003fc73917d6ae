#include "SettingsText.h"

namespace gui {

std::string ValueOf(const std::vector<std::string>& lines, std::string_view key) {
  for (const std::string& line : lines) {
    for (const char* sign : {" = ", "= "}) {
      const std::string start = std::string(key) + sign;
      if (line.starts_with(start)) return line.substr(start.size());
    }
  }
  return "(missing)";
}

}  // namespace gui
