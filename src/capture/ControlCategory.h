// What kind of control a window is, by its class name.
#pragma once

#include <windows.h>

#include <string_view>

namespace capture {

enum class Category {
  Edit,
  ListBox,
  ComboBox,
  ComboLBox,
  ListView,
  TreeView,
  ToolBar,
  TabControl,
  ToolTips,
  Ie,
  IeFrame,
  Child,
  Other,
};

// The category of the first fragment that the class name contains; case counts.
Category CategoryOf(std::wstring_view className);

// The window that holds the browser document when target is of category Ie: a page's own lists and
// combo boxes sit on the document's window, so theirs is the parent. Null when there is none.
HWND DocumentWindow(std::wstring_view className, HWND target, HWND parent);

}  // namespace capture
