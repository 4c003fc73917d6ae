// From a document down to the innermost one and to the element under a point: two descents, with
// two rules. The first follows the read point and finds a frame by id or name, the second follows
// the mouse pointer and finds it by name alone. Odd, and stays: docs/ODDITIES.md.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "browser/BrowserCalls.h"
#include "browser/Interfaces.h"

namespace MyInternetexplore {

// The frame elements that a descent entered, the outermost first.
using FrameTrail = std::vector<ElementPtr>;

// Shows a message to the user.
using ShowMessage = std::function<void(const std::wstring& text)>;

// An origin is the screen position (pixels) of a document's top left corner.

// The innermost document under readPoint (screen pixels), with its origin in outOrigin and the
// entered frames added to trail. Empty when there is no element at the point, when no frame matches
// a frame element, when frames are nested without end, and after an error, such as that of a frame
// that refuses its document; showMessage gets the error.
DocumentPtr ResolveFrameDocument(POINT readPoint, POINT origin, IHTMLDocument2* document,
                                 POINT& outOrigin, FrameTrail& trail,
                                 const ShowMessage& showMessage);

// The element under the mouse pointer, wherever the read point is; with the origin of its document
// in outOrigin and the entered frames added to trail. A frame element that no frame matches is the
// result itself. Empty when there is no element, when frames are nested without end, and after an
// error, which is reported in a message box.
ElementPtr GetElFromPoint(POINT origin, IHTMLDocument2* document, POINT& outOrigin,
                          FrameTrail& trail, BrowserCalls& calls);

}  // namespace MyInternetexplore
