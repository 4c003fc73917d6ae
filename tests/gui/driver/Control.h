// One window of a tested program, seen from outside.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

#include "driver/WaitFor.h"

namespace gui {

// A view of a window; owns nothing. Rectangles and points are in screen pixels. Every query takes
// two seconds at most; a hung window gives an empty text or 0.
class Control {
 public:
  // `name` appears in failure messages.
  Control(HWND window, std::string name) : window_(window), name_(std::move(name)) {}

  HWND Handle() const { return window_; }
  // The handle as the program shows it with "win handle" dec.
  std::string HandleText() const;

  std::string Text() const;
  std::size_t TextLength() const;  // characters
  std::string ClassName() const;
  RECT Rectangle() const;
  SIZE Size() const;
  POINT Center() const;
  bool IsVisible() const;
  bool IsEnabled() const;
  bool IsChecked() const;
  bool HasFocus() const;
  LONG_PTR Style() const { return GetWindowLongPtrW(window_, GWL_STYLE); }

  // Puts a text into an edit control.
  void SetText(std::string_view utf8) const;

  // With the pointer, at the centre; waits until the window is under that point.
  void Click() const;
  void DoubleClick() const;

  // What a click does to a button or check box, without moving the pointer. Does not wait.
  void PressButton() const;

  testing::AssertionResult TextBecomes(std::string_view expected,
                                       Milliseconds deadline = kPatience) const;
  testing::AssertionResult TextStays(std::string_view expected, Milliseconds duration) const;

 private:
  LRESULT Ask(UINT message, WPARAM wParam, LPARAM lParam) const;
  void WaitUntilReachable() const;

  HWND window_;
  std::string name_;
};

// All windows inside `parent`, at any depth.
std::vector<HWND> Descendants(HWND parent);

// Whether `first` and `second` share at least one pixel.
bool Overlap(const RECT& first, const RECT& second);

}  // namespace gui
