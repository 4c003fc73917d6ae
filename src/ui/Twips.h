// Twips, the unit that windows are laid out in: 1/1440 inch, so 15 to a pixel at 96 dots per inch.
#pragma once

#include <windows.h>

#include <cstdint>

#include "platform/Rounding.h"

namespace ui {

struct TwipsRect {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;

  // Clamped to 32 bits: a settings file may ask for any height.
  std::int32_t Right() const { return End(left, width); }
  std::int32_t Bottom() const { return End(top, height); }
  bool operator==(const TwipsRect&) const = default;

 private:
  static std::int32_t End(std::int64_t begin, std::int64_t size) {
    return platform::ClampToInt32(begin + size);
  }
};

struct TwipsScale {
  std::int32_t TwipsPerPixelX = 15;
  std::int32_t TwipsPerPixelY = 15;

  std::int32_t PixelsX(std::int32_t twips) const {
    return platform::RoundedRatio(twips, TwipsPerPixelX);
  }
  std::int32_t PixelsY(std::int32_t twips) const {
    return platform::RoundedRatio(twips, TwipsPerPixelY);
  }
  std::int32_t TwipsX(std::int32_t pixels) const { return pixels * TwipsPerPixelX; }
  std::int32_t TwipsY(std::int32_t pixels) const { return pixels * TwipsPerPixelY; }

  // Each edge is rounded separately, so that neighbours neither overlap nor leave a gap.
  RECT Pixels(const TwipsRect& rect) const {
    return {PixelsX(rect.left), PixelsY(rect.top), PixelsX(rect.Right()), PixelsY(rect.Bottom())};
  }
};

// The scale of a window at dpi dots per inch. When 1440 is not a multiple of dpi, the whole part of
// the quotient is used: controls become a little larger than their texts, never smaller.
constexpr TwipsScale ScaleForDpi(UINT dpi) {
  const auto twips = static_cast<std::int32_t>(1440 / dpi);
  return {twips, twips};
}

}  // namespace ui
