// The necessary calls of readings into accessible objects, alone; the answers are ignored.
#pragma once

#include <windows.h>

namespace bench {

// The name of the object at a point of the screen.
void AskTextAtPoint(POINT point);
// The members, ancestors and children of that object.
void AskAccessibleReport(POINT point);
// The names of the window's children, and of theirs.
void AskChildListing(HWND hwnd);
// The names of the tree's items from that at the point on.
void AskTreeListing(POINT point);

}  // namespace bench
