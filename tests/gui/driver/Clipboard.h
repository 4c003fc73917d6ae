// The text on the clipboard.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gui::clipboard {

// UTF-8; nothing when no text is on the clipboard.
std::optional<std::string> Text();
void SetText(std::string_view utf8);

}  // namespace gui::clipboard
