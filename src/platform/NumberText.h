// Numbers as texts, and texts as numbers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

// The number that text begins with, rounded to the nearest integer, halves to the even neighbour:
// blanks, a sign, digits, a fraction, and nothing else ("12abc" gives 12, "12.5" gives 12, "13.5"
// gives 14). A text that does not begin with a number gives 0. Clamped to 32 bits.
std::int32_t LeadingNumber(std::wstring_view text);

// Upper-case hexadecimal digits without a prefix; a negative number in two's complement.
std::wstring Hexadecimal(std::int32_t number);

// text, padded with blanks on the left to width characters; a longer one is not cut.
std::wstring RightAligned(std::wstring_view text, std::size_t width);

}  // namespace platform
