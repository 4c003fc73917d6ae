// From a document down to the innermost one and to the element under a point. The two descents
// differ on purpose: the first follows the point that is read and knows a frame by id or name, the
// second follows the mouse pointer and knows it by its name.
#pragma once

#include <windows.h>

#include <vector>

#include "browser/BrowserCalls.h"
#include "browser/Interfaces.h"

namespace MyInternetexplore {

// The frame elements that a descent went into, the outermost first.
using FrameTrail = std::vector<ElementPtr>;

// An origin is the screen position (pixels) of a document's top left corner.

// The innermost document under readPoint (screen pixels), its origin in outOrigin, the frames on
// the way added to trail. Empty when there is no element at the point, when no frame belongs to a
// frame element, when a frame refuses its document, and when the frames never end.
DocumentPtr ResolveFrameDocument(POINT readPoint, POINT origin, IHTMLDocument2* document,
                                 POINT& outOrigin, FrameTrail& trail);

// The element under the mouse pointer, wherever the read point is; the origin of its document in
// outOrigin, the frames on the way added to trail. A frame element to which no frame belongs is
// the result itself. Empty when there is none, when the frames never end, and after an error, which
// is reported in a message box.
ElementPtr GetElFromPoint(POINT origin, IHTMLDocument2* document, POINT& outOrigin,
                          FrameTrail& trail, BrowserCalls& calls);

}  // namespace MyInternetexplore
