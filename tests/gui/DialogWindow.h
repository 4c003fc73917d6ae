// A dialog of the running program.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <string_view>

#include "driver/Control.h"
#include "driver/Program.h"

namespace gui {

class DialogWindow {
 public:
  // Waits for the program's visible dialog of that class. Throws when it does not appear.
  DialogWindow(const Program& program, std::string_view className);

  Control Window() const { return {window_, className_}; }
  // The control with that number of ui/ControlIds.h. Throws when there is none.
  Control operator[](int id) const;

  bool IsOpen() const { return IsWindow(window_) != FALSE; }
  testing::AssertionResult Closes() const;

  // Posts the command of its close box.
  void Close() const;

 private:
  std::string className_;
  HWND window_;
};

// Opens the settings dialog with the main window's button.
DialogWindow OpenSettings(const Program& program);

// Opens the hot-key dialog with the button of the settings dialog.
DialogWindow OpenHotKeys(const Program& program, const DialogWindow& settings);

// The number of the control that has the focus; the box in a drop-down list counts as the list.
int FocusOf(const DialogWindow& dialog);
testing::AssertionResult FocusMovesTo(const DialogWindow& dialog, int id);

// Drop-down lists.
int ItemCount(const Control& list);
std::string Item(const Control& list, int index);
int ChosenIndex(const Control& list);
// The edit control in the list; the list itself when it has none.
Control BoxOf(const Control& list);
// Opens the list with the pointer and clicks its item; waits for every step.
void Choose(const Control& list, int index);

// Clicks the box, empties it with the backspace key and types.
void Retype(const Control& box, std::initializer_list<WORD> virtualKeys);

}  // namespace gui
