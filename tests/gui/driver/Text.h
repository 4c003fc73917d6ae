// Texts of the driver are UTF-8, so that a failing comparison prints them readably.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gui {

std::string ToUtf8(std::wstring_view text);
std::wstring ToWide(std::string_view utf8);

// Between UTF-8 and the system code page, in which Conf.txt is written. Characters that the other
// side does not have become "?".
std::string ToCodePage(std::string_view utf8);
std::string FromCodePage(std::string_view text);

// The pieces between separators; a separator at the end adds no empty piece.
std::vector<std::string> Split(std::string_view text, std::string_view separator);

}  // namespace gui
