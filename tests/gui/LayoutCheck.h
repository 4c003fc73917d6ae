// Finds from outside what a user would call a broken layout.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "driver/Control.h"

namespace gui {

// Each function returns one line for every fault, so an empty list means that there is none.

// Visible controls of the same parent that cover each other. The bottom pane and the status box
// may share one pixel row: they are laid out so.
std::vector<std::string> Overlaps(const Control& window);

// Visible controls that extend beyond their parent's inner area.
std::vector<std::string> Protruding(const Control& window);

// Captions, items of lists, and boxes with their longest usual text, that are wider or higher than
// their control in the message font of that resolution.
std::vector<std::string> ClippedTexts(const Control& window, UINT dpi);

// The inner area of a window in screen pixels.
RECT InnerArea(const Control& window);

}  // namespace gui
