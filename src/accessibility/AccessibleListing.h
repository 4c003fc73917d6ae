// The names of accessible objects, one per row. They list trees, drop-down lists and windows of
// unknown kinds. Names are cut as "accname max" says.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "accessibility/MyAccessible.h"
#include "platform/ItemSink.h"
#include "platform/ReadSession.h"
#include "settings/Settings.h"

namespace MyAccessible {

// The name; a longer one is cut to its first accnameMax characters and followed by seven full
// stops.
std::wstring ShortName(std::wstring_view name, std::int32_t accnameMax);

// The children of the window's accessible object, each followed by its own children. Children
// without a name get no row; when no child has a name, nothing is listed.
void ListChildren(HWND hwnd, const settings::Settings& settings,
                  const platform::ReadSession& session, platform::ItemSink& sink);

// The same for an object.
void ListChildrenOf(IAccessible* object, const settings::Settings& settings,
                    const platform::ReadSession& session, platform::ItemSink& sink);

// The items of the tree view hwnd, from the first one on the level of the item at the read point.
// With "treeview indent" each row begins with an empty cell for every level below that. When the
// point is not over an item, lists the children as ListChildren does.
void ListTree(HWND hwnd, const platform::ReadPoint& point, const settings::Settings& settings,
              const platform::ReadSession& session, platform::ItemSink& sink);

// The same, with the item at the point given.
void ListTreeAround(const ObjectAndChild& item, const settings::Settings& settings,
                    const platform::ReadSession& session, platform::ItemSink& sink);

}  // namespace MyAccessible
