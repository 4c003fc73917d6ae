// What the readers of items share: when they stop, how they show their progress, and that a failure
// leaves what was read.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/ItemSink.h"
#include "platform/ReadSession.h"

namespace extract {

// The method that read a text, as users see it: the message's name, or "Accessible". Empty when
// nothing was read.
using Method = std::wstring_view;

constexpr Method kByAccessibleObject = L"Accessible";

// Larger counts of buttons or tabs are limited to this.
constexpr std::int32_t kMostParts = 1 << 16;

// Whether the reading stops, because of the session or because the text has grown beyond what this
// program can show (64 Mi characters: a control that claims two billion items). If so, the sink
// gets the mark of an interruption.
bool Interrupted(const platform::ReadSession& session, platform::ReadUntil end,
                 platform::ItemSink& sink);

// After an item: shows the progress and yields.
void Progress(const platform::ReadSession& session, std::int32_t done, std::wstring_view separator,
              std::int32_t total);

// What read() returns; nothing when it fails.
template <typename Read>
Method MethodOf(Read&& read) {
  try {
    return read();
  } catch (...) {
    return {};
  }
}

}  // namespace extract
