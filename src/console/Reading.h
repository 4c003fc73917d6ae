// Reads a window with the readers that every report uses, and gathers the facts.
#pragma once

#include <cstdint>
#include <optional>

#include "console/Facts.h"
#include "console/Target.h"

namespace console {

struct ReadOptions {
  std::optional<std::int32_t> most;  // rows of a list; all when nothing
  bool tree = false;                 // the visible descendants, too
  bool everything = true;            // also what is no text: object, page, status text
};

// Waits until the window has answered, which may be for ever. A window that the system knows to
// hang is asked for nothing. Needs COM.
Facts Read(const Target& target, const ReadOptions& options);

}  // namespace console
