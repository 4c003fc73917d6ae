// What the readers of items have in common: when they stop, what they show meanwhile, and that
// they give what they have when something fails.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/ReadSession.h"

namespace extract {

// No control has more buttons or tabs: a count beyond this is not believed.
constexpr std::int32_t kMostParts = 1 << 16;

// Whether the reading of hwnd shall stop, because the capture is on another window by now or the
// text has grown beyond what this program can show (64 Mi characters: a control that claims two
// billion items). If so, the mark of an interruption is appended.
bool Interrupted(HWND hwnd, const platform::ReadSession& session, std::wstring& text);

// Shows how far the reading is and lets the program go on.
void Progress(const platform::ReadSession& session, std::int32_t done, std::wstring_view separator,
              std::int32_t total);

// The text that read(text) collects; when it fails, what it had collected until then.
template <typename Read>
std::wstring Collected(Read&& read) {
  std::wstring text;
  try {
    read(text);
  } catch (...) {
  }
  return text;
}

}  // namespace extract
