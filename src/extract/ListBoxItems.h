// All items of a list box or combo box, in any process.
#pragma once

#include <windows.h>

#include "extract/ControlAccess.h"
#include "extract/ItemReading.h"

namespace extract {

// One item per row. Progress is the item's number from 0, "/", the last item's number. An item that
// the control does not give is an empty one; one that has no text, because its owner draws it from
// data of its own, is left out. Stops before an item, with the mark of an interruption, when the
// pointer has left. The method is "LB_GETTEXT" or "CB_GETLBTEXT", also for a control without items.
Method MyGetListBoxItem(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                        const ControlAccess& access = SystemAccess());
Method MyGetComboBoxItem(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                         const ControlAccess& access = SystemAccess());

// Whether the control is drawn by its owner from data of the owner's, and holds no texts itself.
bool ListBoxHasNoTexts(HWND hwnd, const ControlAccess& access = SystemAccess());
bool ComboBoxHasNoTexts(HWND hwnd, const ControlAccess& access = SystemAccess());

}  // namespace extract
