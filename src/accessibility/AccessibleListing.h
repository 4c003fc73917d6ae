// The names of accessible objects, one a line, each line with its CR LF: what trees, drop-down
// lists and windows of no known kind are listed by. Names are cut as "accname max" says.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "accessibility/MyAccessible.h"
#include "platform/ReadSession.h"
#include "settings/Settings.h"

namespace MyAccessible {

// Stands for a listing when there is no accessible object to list.
constexpr std::wstring_view kNoObject = L"% 取得エラー！ %";

// The line that ends a listing which is cut at "parent & children max"; without its line end.
constexpr std::wstring_view kRestOmitted =
    L"-- 以下省略 -- 個数変更：[設定]→[MSAA] …Child最大取得個数";

// The name, cut to its first accnameMax characters with seven full stops behind it when it has
// more.
std::wstring ShortName(std::wstring_view name, std::int32_t accnameMax);

// The children of the window's accessible object, each followed by its own children. Children
// without a name get no line.
std::wstring ListChildren(HWND hwnd, const settings::Settings& settings,
                          const platform::ReadSession& session);

// The same for an object.
std::wstring ListChildrenOf(IAccessible* object, const settings::Settings& settings,
                            const platform::ReadSession& session);

// The items of the tree view hwnd, from the first of the level of the item at the screen point
// (pixels); with "treeview indent", indented with TABs. Not over an item: its children as
// ListChildren gives them.
std::wstring ListTree(HWND hwnd, POINT point, const settings::Settings& settings,
                      const platform::ReadSession& session);

// The items around one of them.
std::wstring ListTreeAround(const ObjectAndChild& item, const settings::Settings& settings,
                            const platform::ReadSession& session);

}  // namespace MyAccessible
