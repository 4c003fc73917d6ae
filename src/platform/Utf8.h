// Texts between UTF-16 and UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace platform {

// Half of a surrogate pair without the other becomes U+FFFD.
std::string ToUtf8(std::wstring_view text);

// Invalid bytes become U+FFFD.
std::wstring FromUtf8(std::string_view utf8);

}  // namespace platform
