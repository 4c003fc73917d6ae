// All rows of a list view, in any process.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <string>

#include "extract/ControlAccess.h"
#include "platform/ReadSession.h"

namespace extract {

// Values of the setting "listview col" that are of interest here; with others all columns are read.
constexpr std::int32_t kFirstColumnOnly = 2;

// Reads a window through its accessible object.
using AccessibleReader = std::function<std::wstring(HWND)>;

// One row a line, cells separated by TAB, each row ended by CR LF. A cell's text is what fits into
// 256 bytes of the system code page. Progress is the rows read, "/", all rows. Stops after a row,
// with the mark of an interruption, when the session's target is no longer hwnd or the capture
// shall end.
//
// On a 64-bit system, without columns, and when no cell has a text, what accessible(hwnd) gives.
// method becomes "LVM_GETITEMW" or "Accessible"; it stays as it is when there are no rows or the
// target's memory cannot be used.
std::wstring GetListViewItem(HWND hwnd, const platform::ReadSession& session, std::wstring& method,
                             std::int32_t listviewCol, const AccessibleReader& accessible,
                             const ControlAccess& access = SystemAccess());

}  // namespace extract
