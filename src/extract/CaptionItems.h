// The texts of controls that give them item by item through a record or a buffer, in any process:
// extended combo boxes, headers and status bars. One text per row. Progress is the texts read, "/",
// all texts. Stops before an item, with the mark of an interruption, when the pointer has left. The
// method is empty when there are no items or the target's memory cannot be used.
#pragma once

#include <windows.h>

#include "extract/ControlAccess.h"
#include "extract/ItemReading.h"

namespace extract {

// The ComboBoxEx that the window is, or that holds it; null when there is none.
HWND ComboBoxExOf(HWND hwnd);

// The items of a ComboBoxEx. The method is "CBEM_GETITEMW".
Method GetComboBoxExItem(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                         const ControlAccess& access = SystemAccess());

// The captions of a header's columns. The method is "HDM_GETITEMW".
Method GetHeaderItem(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                     const ControlAccess& access = SystemAccess());

// The texts of a status bar's parts, without the TABs that only align them; the one text of a bar
// in simple mode. A part that its owner draws is empty. The method is "SB_GETTEXTW".
Method GetStatusBarItem(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                        const ControlAccess& access = SystemAccess());

}  // namespace extract
