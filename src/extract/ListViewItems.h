// All rows of a list view, in any process.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>

#include "extract/ControlAccess.h"
#include "extract/ItemReading.h"

namespace extract {

// The value of the setting "listview col" that matters here; with others all columns are read.
constexpr std::int32_t kFirstColumnOnly = 2;

// Larger counts are limited to this, because the reader yields only after each row.
constexpr std::int32_t kMostColumns = 1024;

// Reads the window through its accessible object.
using AccessibleReader = std::function<void(platform::ItemSink& sink)>;

// A cell's text is cut at 256 bytes of the system code page. Progress is the rows read, "/", all
// rows. Stops after a row, with the mark of an interruption, when the pointer has left or the
// capture should end.
//
// On a 64-bit system, without columns, and when no cell has a text, accessible reads the list. The
// method is "LVM_GETITEMW" or "Accessible", and empty when there are no rows or the target's memory
// cannot be used.
Method GetListViewItem(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                       std::int32_t listviewCol, const AccessibleReader& accessible,
                       const ControlAccess& access = SystemAccess());

}  // namespace extract
