// What a window holds, asked by the tests themselves: its caption by WM_GETTEXT, its items by the
// messages of its class, whole.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>

namespace corpus {

struct WindowTexts {
  std::wstring caption;
  // As a report lists them: a row is a line, cells are separated by TAB, items of a tree are
  // indented. Empty for classes without items, and when no item has a text.
  std::wstring items;
  std::size_t longestItem = 0;  // characters
  bool lists = false;           // a class with items
  bool painted = false;         // its items are values, which its program paints

  bool Any() const { return !caption.empty() || !items.empty(); }
};

// Throws std::runtime_error when the window does not answer within 20 s.
WindowTexts TextsOf(HWND window);

}  // namespace corpus
