// The document of a browser's window and the element at a point of the screen.
#pragma once

#include <windows.h>

#include <string>

#include "browser/BoundedMessages.h"
#include "browser/BrowserCalls.h"
#include "browser/FrameDescent.h"
#include "browser/InterfaceDescription.h"
#include "browser/Interfaces.h"

namespace MyInternetexplore {

// How pages are reached. The messages and the description outlive a report: a window that hangs is
// not waited for again and again, and the description is loaded once.
struct BrowserAccess {
  BrowserCalls& calls;
  BoundedMessages& messages;
  InterfaceDescription* description = nullptr;  // held from the first page on, if there is one
};

// The document of a browser's content window; empty when it does not answer within 2 s, and when it
// answers with nothing or with something other than a document. An error before that is reported in
// a message box.
DocumentPtr GetIeObjFromhWnd(HWND hwnd, const BrowserAccess& access);

// An element and the frames that were entered to reach it.
struct FoundElement {
  ElementPtr element;  // empty when there is none
  FrameTrail frames;   // the outermost first
};

// The element in a document at origin: the inner document is found by the read point (screen
// pixels), the element in it by the mouse pointer. Errors go to showMessage or a message box.
FoundElement FindElement(POINT readPoint, POINT origin, IHTMLDocument2* document,
                         const BrowserAccess& access, const ShowMessage& showMessage);

// The top left corner of the window, where its document begins.
POINT OriginOf(HWND hwnd, const BrowserAccess& access);

// The element at the screen point (x, y) in pixels, across frames; empty when there is none.
// showMessage is also called when the window there has no document.
ElementPtr GetElByPos(int x, int y, const BrowserAccess& access, const ShowMessage& showMessage);

}  // namespace MyInternetexplore
