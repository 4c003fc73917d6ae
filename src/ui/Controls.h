// Controls as rows of a table, created in one loop and found by their number.
#pragma once

#include <windows.h>

#include <map>
#include <span>
#include <string>

#include "platform/UniqueHandle.h"
#include "ui/Twips.h"

namespace ui {

// A container for other controls, WS_EX_CONTROLPARENT, that passes their notifications on.
constexpr const wchar_t* kFrameClass = L"VelmoraFrame";

// The same with a border and its text as a title: the system's group box, with its controls inside
// instead of beside it, so that they are shown, hidden and moved together.
constexpr const wchar_t* kGroupClass = L"VelmoraGroup";

struct ControlRow {
  int id;
  int parent;  // the number of its frame; 0: the window itself
  const wchar_t* className;
  DWORD style;  // in addition to WS_CHILD
  const wchar_t* caption;
  TwipsRect place;  // in its parent
};

class ControlSet {
 public:
  // Creates every row's control in window, at its place and in the system's message font, both at
  // dpi dots per inch. Rows are in the order of the Tab key; a frame comes before its controls.
  void Create(HWND window, std::span<const ControlRow> rows, UINT dpi);

  // The control's window; null for a number that no row has.
  HWND operator[](int id) const;

  // Gives every control its place and font at another number of dots per inch.
  void ApplyDpi(UINT dpi);

  void Place(int id, const TwipsRect& place, const TwipsScale& scale);

  HFONT Font() const { return font_.Get(); }

 private:
  std::span<const ControlRow> rows_;
  std::map<int, HWND> windows_;
  platform::UniqueFont font_;
};

// The text of a window of this thread.
std::wstring WindowText(HWND hwnd);

// A check box: it holds 0 or 1, and is ticked for every value but 0.
int BoxValue(HWND box);
void SetBox(HWND box, int value);

}  // namespace ui
