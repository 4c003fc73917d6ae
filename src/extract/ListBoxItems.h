// All items of a list box or combo box, in any process.
#pragma once

#include <windows.h>

#include <string>

#include "extract/ControlAccess.h"
#include "platform/ReadSession.h"

namespace extract {

// One item a line, each ended by CR LF. Progress is the item's number from 0, "/", the last item's
// number. An item that the control does not give, or has no text for because its owner draws it
// from data of its own, is left out. Stops before an item, with the mark
// of an interruption, when the session's target is no longer hwnd. method becomes "LB_GETTEXT" or
// "CB_GETLBTEXT", also for a control without items.
std::wstring MyGetListBoxItem(HWND hwnd, const platform::ReadSession& session, std::wstring& method,
                              const ControlAccess& access = SystemAccess());
std::wstring MyGetComboBoxItem(HWND hwnd, const platform::ReadSession& session,
                               std::wstring& method, const ControlAccess& access = SystemAccess());

}  // namespace extract
