// What a text consists of: the counts that a pane's tool tip shows.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace extract {

// How often pattern, which must not be empty, occurs in text: from the left, exactly, and without
// overlaps ("aa" occurs twice in "aaaa").
std::int32_t FindStrCnt(std::wstring_view text, std::wstring_view pattern);

struct TextCount {
  std::int32_t chars = 0;       // UTF-16 units, each CR LF counted as one
  std::int32_t bytes = 0;       // in the system's code page, CR LF as two
  std::int32_t wide = 0;        // characters that take two bytes there
  std::int32_t wideSpaces = 0;  // U+3000
  std::int32_t spaces = 0;      // U+0020
  std::int32_t lineBreaks = 0;  // CR LF
  std::int32_t tabs = 0;

  bool operator==(const TextCount&) const = default;
};

TextCount GetTextCount(std::wstring_view text);

// The count line of these counts.
std::wstring CountLine(const TextCount& count);

using CountFunction = std::function<TextCount(std::wstring_view)>;

// The count line of text. A failure is reported in a message box titled "GetTextCountInfo" and
// gives an empty text.
std::wstring GetTextCountInfo(std::wstring_view text, const CountFunction& count = GetTextCount);

}  // namespace extract
