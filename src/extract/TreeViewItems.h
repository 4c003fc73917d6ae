// All items of a tree view in any process, closed branches included, by messages.
#pragma once

#include <windows.h>

#include <cstdint>

#include "extract/ControlAccess.h"
#include "extract/ItemReading.h"

namespace extract {

struct TreeLook {
  bool indented;            // each row begins with an empty cell for every level
  std::int32_t accnameMax;  // characters of a name, as in the listings of accessible objects
};

// From the first root to the last item of its last branch. Progress is the items read. Stops before
// an item, with the mark of an interruption, when the pointer has left or the capture should end,
// and after 65,536 items. The method is "TVM_GETITEMW", and empty when there are no items, when the
// target's memory cannot be used, and when a 64-bit process has its items where no message of this
// 32-bit program can name them.
Method GetTreeViewItem(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                       const TreeLook& look, const ControlAccess& access = SystemAccess());

}  // namespace extract
