// The captions of all tabs of a tab control, in any process.
#pragma once

#include <windows.h>

#include "extract/ControlAccess.h"
#include "extract/ItemReading.h"

namespace extract {

// One caption per row, of at most 256 bytes of the system code page. Progress is the tabs read, "/
// --", all tabs. Stops before a tab, with the mark of an interruption, when the pointer has left.
// The method is "TCM_GETITEM", and empty when the target's memory cannot be used or when it is
// unknown whether the target is a 64-bit process.
Method GetTabControlItem(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                         const ControlAccess& access = SystemAccess());

}  // namespace extract
