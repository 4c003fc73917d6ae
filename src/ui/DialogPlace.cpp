#include "ui/DialogPlace.h"

#include <algorithm>

namespace ui {
namespace {

constexpr LONG kReach = 80;           // pixels of the title bar that stay visible
constexpr std::int32_t kMargin = 10;  // pixels

}  // namespace

POINT Reachable(POINT wanted, SIZE size, const RECT& work) {
  const LONG leftmost = std::min(work.left, work.left + kReach - size.cx);
  const LONG rightmost = std::max(leftmost, work.right - kReach);
  const LONG lowest = std::max(work.top, work.bottom - kReach);
  return {std::clamp(wanted.x, leftmost, rightmost), std::clamp(wanted.y, work.top, lowest)};
}

POINT Centred(SIZE size, const RECT& work) {
  return {(work.left + work.right - size.cx) / 2, (work.top + work.bottom - size.cy) / 2};
}

TwipsRect CloseButtonPlace(const TwipsRect& button, std::int32_t innerWidth,
                           std::int32_t innerHeight, const TwipsScale& scale) {
  const std::int32_t margin = kMargin * scale.TwipsPerPixelX;
  return {innerWidth - button.width - margin, innerHeight - button.height - margin, button.width,
          button.height};
}

}  // namespace ui
