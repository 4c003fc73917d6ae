// From an element up to the root of the topmost page, through all frames around it.
#pragma once

#include <cstddef>

#include "browser/FrameDescent.h"
#include "browser/Interfaces.h"
#include "browser/PageFacts.h"
#include "platform/ReadSession.h"

namespace MyInternetexplore {

// The parent element, or, at the top of a document in a frame, the frame element around it: taken
// from frames, and once frames is empty, found among the frames of the enclosing page. Empty at the
// topmost root, and when the enclosing page cannot be read. leftFrame is set when the element had
// no parent.
ElementPtr NextOutward(IHTMLElement* element, FrameTrail& frames, bool& leftFrame);

// Fills chain, framePath and interrupted of the facts for the element; at most kMostLevels rows.
// mostText limits the displayed text of each.
void ReadChain(ElementPtr element, FrameTrail frames, std::size_t mostText,
               const platform::ReadSession& session, PageFacts& facts);

}  // namespace MyInternetexplore
