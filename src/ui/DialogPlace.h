// The places of a dialog and its parts: pure functions. Screen positions are in pixels.
#pragma once

#include <windows.h>

#include "ui/Twips.h"

namespace ui {

// wanted, moved as little as needed to leave the title bar within the user's reach: its top inside
// work, and at least a piece of it between left and right.
POINT Reachable(POINT wanted, SIZE size, const RECT& work);

POINT Centred(SIZE size, const RECT& work);

// The close button in the bottom right corner of an inner area, ten pixels from both edges by the
// horizontal factor. Odd, and stays: docs/ODDITIES.md.
TwipsRect CloseButtonPlace(const TwipsRect& button, std::int32_t innerWidth,
                           std::int32_t innerHeight, const TwipsScale& scale);

}  // namespace ui
