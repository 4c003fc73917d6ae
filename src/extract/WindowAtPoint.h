// Which window is meant at a point. The system gives a group box where a frame lies above the
// controls that it frames, and skips disabled controls.
#pragma once

#include <windows.h>

#include <span>

namespace extract {

// A visible window that holds the point. Those of one parent are in Z order, the topmost first.
struct WindowThere {
  HWND hwnd;
  RECT place;  // screen pixels
  bool enabled;
  bool groupBox;
};

// The smallest of the siblings of a group box that is no group box itself and is not behind all of
// its frame; null when there is none. Of equally small ones it is the topmost.
HWND FramedWindow(const RECT& frame, std::span<const WindowThere> siblings);

// The disabled window that is meant among the children of the given one; null when there is none,
// or when an enabled one is above them. A group box gives way to what it frames.
HWND DisabledChild(std::span<const WindowThere> children);

// The window that is meant among children, enabled or not: the topmost, or what it frames when it
// is a group box. Null without children.
HWND ChildMeant(std::span<const WindowThere> children);

// The window that is meant where the system gives the window `given` at the point (screen pixels):
// what a group box frames, or a disabled child, and the innermost window of these. Mostly given
// itself. Sends no message.
HWND WindowMeant(HWND given, POINT point);

}  // namespace extract
