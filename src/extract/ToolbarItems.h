// The texts of all buttons of a toolbar, in any process.
#pragma once

#include <windows.h>

#include <string>

#include "extract/ControlAccess.h"
#include "platform/ReadSession.h"

namespace extract {

// One text a line, each ended by CR LF, of at most 121 bytes of the system code page; buttons
// without a text give no line. Progress is the buttons read, "/", all buttons. Stops before a
// button, with the mark of an interruption, when the session's target is no longer hwnd. method
// becomes "TB_GETBUTTON"; it stays as it is when the target's memory cannot be used.
std::wstring GetToolbarItem(HWND hwnd, const platform::ReadSession& session, std::wstring& method,
                            const ControlAccess& access = SystemAccess());

}  // namespace extract
