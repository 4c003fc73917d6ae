// Small text functions that readers and panes share.
#pragma once

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

// Whether text contains part, compared without regard to case.
bool ContainsIgnoringCase(std::wstring_view text, std::wstring_view part);

}  // namespace extract
