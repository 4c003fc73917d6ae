// The captions of all tabs of a tab control, in any process.
#pragma once

#include <windows.h>

#include <string>

#include "extract/ControlAccess.h"
#include "platform/ReadSession.h"

namespace extract {

// One caption a line, each ended by CR LF, of at most 256 bytes of the system code page. Progress
// is the tabs read, "/ --", all tabs. Stops before a tab, with the mark of an interruption, when
// the session's target is no longer hwnd. method becomes "TCM_GETITEM"; it stays as it is when the
// target's memory cannot be used or the target does not tell whether it is a 64-bit process.
std::wstring GetTabControlItem(HWND hwnd, const platform::ReadSession& session,
                               std::wstring& method, const ControlAccess& access = SystemAccess());

}  // namespace extract
