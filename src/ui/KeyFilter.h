// Which keys a text box takes.
#pragma once

#include <windows.h>

namespace ui {

enum class Typing {
  Anything,
  Digits,          // and the backspace key
  DigitsAndMinus,  // and the backspace key
  Nothing,         // the box of a drop-down list: only the list changes it
};

// Whether a box that takes typing takes this character.
bool Accepts(Typing typing, wchar_t character);

// Makes box, an edit control, discard every other key silently. With Typing::Nothing only keys that
// control the list pass, open or closed: nothing edits the text, not even the clipboard.
void FilterKeys(HWND box, Typing typing);

// The edit control of a drop-down list; null when it has none.
HWND BoxOfList(HWND list);

}  // namespace ui
