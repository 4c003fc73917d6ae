// The texts of all buttons of a toolbar, in any process.
#pragma once

#include <windows.h>

#include "extract/ControlAccess.h"
#include "extract/ItemReading.h"

namespace extract {

// One text per row, of at most 121 bytes of the system code page; buttons without a text give no
// row. Progress is the buttons read, "/", all buttons. Stops before a button, with the mark of an
// interruption, when the pointer has left. The method is "TB_GETBUTTON", and empty when the
// target's memory cannot be used.
Method GetToolbarItem(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                      const ControlAccess& access = SystemAccess());

}  // namespace extract
