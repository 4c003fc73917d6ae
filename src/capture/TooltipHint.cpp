#include "capture/TooltipHint.h"

namespace capture {
namespace {

// A tool tip appears after half a second of rest; later it need not be read again.
constexpr std::uint32_t kFromMs = 501;
constexpr std::uint32_t kUntilMs = 3000;
constexpr std::uint32_t kPauseMs = 100;

}  // namespace

bool TooltipIsDue(std::uint32_t stillMs, std::uint32_t now, std::uint32_t lastAsked) {
  return stillMs >= kFromMs && stillMs < kUntilMs && now - lastAsked > kPauseMs;
}

}  // namespace capture
