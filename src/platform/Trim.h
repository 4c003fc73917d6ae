// Blanks at the ends of texts.
#pragma once

#include <string_view>

namespace platform {

// text without the blanks (U+0020) at both ends. TAB and the ideographic space stay.
constexpr std::wstring_view Trimmed(std::wstring_view text) {
  const std::size_t first = text.find_first_not_of(L' ');
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(L' ') - first + 1);
}

}  // namespace platform
