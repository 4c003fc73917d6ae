// A page as a picture, so that the screen can be compared with what was read.
#pragma once

#include <windows.h>

#include "Page.h"

namespace html {

// Draws the elements of the document: their outlines, and the texts of the innermost ones.
void Draw(HDC dc, const Document& document);

}  // namespace html
