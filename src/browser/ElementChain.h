// The way from an element up to the root of the topmost page, out of every frame on the way.
#pragma once

#include <cstddef>

#include "browser/FrameDescent.h"
#include "browser/Interfaces.h"
#include "browser/PageReader.h"

namespace MyInternetexplore {

// The parent element, or, at the top of a document in a frame, the frame element around it: taken
// from frames, and where those are used up, found among the frames of the page around. Empty at
// the topmost root, and when the page around cannot be read. leftFrame tells which of them it was.
ElementPtr NextOutward(IHTMLElement* element, FrameTrail& frames, bool& leftFrame);

// Fills chain, framePath and interrupted of the facts for the element; at most kMostLevels rows.
// mostText limits the displayed text of each.
void ReadChain(ElementPtr element, FrameTrail frames, std::size_t mostText,
               const platform::ReadSession& session, PageFacts& facts);

}  // namespace MyInternetexplore
