// The document of a browser's window and the element at a point of the screen.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "browser/BoundedMessages.h"
#include "browser/BrowserCalls.h"
#include "browser/FrameDescent.h"
#include "browser/Interfaces.h"

namespace MyInternetexplore {

// How pages are reached. The messages outlive a report: a window that hangs is not waited for
// again and again.
struct BrowserAccess {
  BrowserCalls& calls;
  BoundedMessages& messages;
};

// The document of a browser's content window; empty when it does not answer within 2 s, when it
// answers with nothing or with what is no document. An error before that is reported in a message
// box.
DocumentPtr GetIeObjFromhWnd(HWND hwnd, const BrowserAccess& access);

// An element and the frames that were entered to reach it.
struct FoundElement {
  ElementPtr element;  // empty when there is none
  FrameTrail frames;   // the outermost first
};

// The element of a document at origin: its document by the read point (screen pixels), itself by
// the mouse pointer.
FoundElement FindElement(POINT readPoint, POINT origin, IHTMLDocument2* document,
                         const BrowserAccess& access);

// The top left corner of the window, where its document begins.
POINT OriginOf(HWND hwnd, const BrowserAccess& access);

// What a message for the user is handed to.
using ShowMessage = std::function<void(const std::wstring& text)>;

// The element at the screen point (x, y) in pixels, across frames; empty when there is none. Says
// so in showMessage when the window there has no document.
ElementPtr GetElByPos(int x, int y, const BrowserAccess& access, const ShowMessage& showMessage);

}  // namespace MyInternetexplore
