// What kind of control a window is, by its class name.
#pragma once

#include <windows.h>

#include <string_view>

namespace report {

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

// The window that holds the browser document when target is of category Ie: lists and combo boxes
// of a page are children of the document's window, so for them it is the parent. Null when there is
// none.
HWND DocumentWindow(std::wstring_view className, HWND target, HWND parent);

}  // namespace report
