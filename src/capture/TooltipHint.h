// Decides when a pass of a capture looks for a tool tip.
#pragma once

#include <cstdint>

namespace capture {

// stillMs: how long the pointer has rested; now: the tick of the pass; lastAsked: the tick at which
// it was looked for last.
bool TooltipIsDue(std::uint32_t stillMs, std::uint32_t now, std::uint32_t lastAsked);

}  // namespace capture
