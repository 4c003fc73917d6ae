// The message queue of the one thread: waits for messages, and dispatches the pending ones in
// between.
#pragma once

#include <windows.h>

namespace platform {

// Makes the pump treat window as a dialog: the Tab key, the arrow keys and access keys move between
// its controls. Call RemoveDialog when the window is destroyed.
void AddDialog(HWND window);
void RemoveDialog(HWND window);

// Dispatches every pending message of the thread and returns. A pending WM_QUIT is left for
// RunMessageLoop.
void Pump();

// Dispatches messages until WM_QUIT; returns its exit code.
int RunMessageLoop();

}  // namespace platform
