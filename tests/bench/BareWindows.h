// The system calls of readings about windows, alone; the answers are ignored.
#pragma once

#include <windows.h>

namespace bench {

// The class, the caption and the place of a window.
void AskWindow(HWND hwnd);
// The same of the window, its owner, its ancestors and its visible children.
void AskInformation(HWND hwnd);
// The classes of all windows below the topmost ancestor and below the window in the foreground,
// among which there may be a status bar.
void AskForStatusBars(HWND hwnd);

}  // namespace bench
