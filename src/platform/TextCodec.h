// The only place where texts change between UTF-16 and the system's ANSI code page.
#pragma once

#include <string>
#include <string_view>

namespace platform {

// text in the system's ANSI code page. A character that the code page cannot hold becomes the
// code page's replacement character (one byte). An empty text gives an empty text.
std::string ToAnsi(std::wstring_view text);

// How many bytes text takes in the system's ANSI code page, or, where that is no double-byte one,
// in code page 932, which the character counts are meant for. A character that the page cannot hold
// takes one byte.
std::size_t DoubleByteLength(std::wstring_view text);

// bytes of the system's ANSI code page as UTF-16. Invalid bytes become replacement characters;
// nothing is dropped and nothing fails.
std::wstring FromAnsi(std::string_view bytes);

}  // namespace platform
