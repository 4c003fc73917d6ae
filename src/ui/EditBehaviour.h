// What every text box of this program adds to the system's edit control.
#pragma once

#include <windows.h>

namespace ui {

// Sent to the window that the box belongs to, as WM_COMMAND's notification codes are: a double
// click on a box.
constexpr WORD kBoxDoubleClick = 0x7001;

// Lets the Tab key leave a multi-line box and lets it hold as many characters as memory allows.
// Double clicks reach root as WM_COMMAND with kBoxDoubleClick; when root answers 0 the box does
// what edit controls do.
void AddEditBehaviour(HWND box, HWND root);

}  // namespace ui
