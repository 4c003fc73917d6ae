// All rows of a list view in any process, by messages in the bitness of its process.
#pragma once

#include <windows.h>

#include "extract/ControlAccess.h"
#include "extract/ItemReading.h"

namespace extract {

// Every cell whole. A list without columns has one. Progress is the rows read, "/", all rows. Stops
// after a row, with the mark of an interruption, when the pointer has left or the capture should
// end. The method is "LVM_GETITEMW", and empty when the target's memory cannot be used.
Method GetListViewRows(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                       std::int32_t listviewCol, const ControlAccess& access = SystemAccess());

}  // namespace extract
