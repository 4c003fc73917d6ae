// What every text box of this program adds to the system's edit control.
#pragma once

#include <windows.h>

namespace ui {

// Sent to the window that the box belongs to, as WM_COMMAND's notification codes are: a click and a
// double click on a box, after the box itself has seen it.
constexpr WORD kBoxClick = 0x7000;
constexpr WORD kBoxDoubleClick = 0x7001;

// The state of the modifier keys, as a sum.
constexpr int kShiftDown = 1;
constexpr int kCtrlDown = 2;
constexpr int kAltDown = 4;

// The keys of a text box (the name is odd, and stays: docs/ODDITIES.md): C with Ctrl alone clears
// the clipboard and puts the selected text on it, also an empty one. Every other key does nothing
// here.
void MyGetLevel(HWND box, WPARAM keyCode, int shift);

// Lets the Tab key leave a multi-line box, lets it hold as many characters as memory allows, and
// sends clicks to root as WM_COMMAND.
void AddEditBehaviour(HWND box, HWND root);

}  // namespace ui
