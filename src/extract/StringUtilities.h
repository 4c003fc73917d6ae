// Small text functions that readers and panes share.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace extract {

// text with every occurrence of pattern replaced, scanning from the left. pattern must not be
// empty.
std::wstring Replaced(std::wstring_view text, std::wstring_view pattern,
                      std::wstring_view replacement);

// text with every lone LF turned into CR LF; CR LF and lone CR stay. placeholder stands for CR LF
// in between, so an occurrence of it in text comes out as CR LF too.
std::wstring WithCrLf(std::wstring_view text, std::wstring_view placeholder);

// The part of buffer before its first zero character; empty when it holds none.
std::wstring UpToNul(std::wstring_view buffer);

// text without blanks at its ends and enclosing double quotes, which are removed repeatedly (` "
// "a" " ` gives `a`). A text that is a single double quote throws InvalidArgument.
std::wstring CutDblQuot(std::wstring_view text);

// Whether path, resolved against the program's folder, names a normal file. Throws as CutDblQuot
// does. Not used here, like MaxOf and IsPositive: for the other programs of this family.
bool FileExists(const std::wstring& path);

// The larger, the smaller of two values; the first when they are equal.
template <typename Value>
const Value& MaxOf(const Value& a, const Value& b) {
  return a < b ? b : a;
}
template <typename Value>
const Value& MinOf(const Value& a, const Value& b) {
  return b < a ? b : a;
}

constexpr bool IsPositive(std::int32_t n) { return n > 0; }

// Whether text contains part, compared without regard to case.
bool ContainsIgnoringCase(std::wstring_view text, std::wstring_view part);

}  // namespace extract
