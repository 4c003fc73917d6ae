// What the dialogs of this program have in common: controls from a table at the window's DPI, tool
// tips, and the keys of a dialog. A dialog has no message loop of its own, so that a capture goes
// on while it is open.
#pragma once

#include <windows.h>

#include <span>
#include <string>

#include "ui/Controls.h"
#include "ui/DialogKeys.h"
#include "ui/ToolTips.h"
#include "ui/Window.h"

namespace ui {

struct DialogPlan {
  const wchar_t* className;
  const wchar_t* caption;
  DWORD style;  // in addition to those of every dialog
  HWND owner;
  std::int32_t innerWidth;  // twips
  std::int32_t innerHeight;
  POINT corner;                      // top left corner, in pixels; chooses the monitor
  std::span<const ControlRow> rows;  // owned by the caller
  int firstFocus;
  int defaultButton = 0;
};

class Dialog : public Window {
 public:
  ~Dialog() override;

 protected:
  // Creates the window, topmost and not yet visible, with its controls.
  bool Open(const DialogPlan& plan);

  // Destroys the window; Open can create it again.
  void Close();

  // Handles what all dialogs have in common. The Esc key closes no dialog: it is also polled as the
  // hot key, and one press must not do two things.
  LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  HWND Control(int id) const { return controls_[id]; }
  ControlSet& Controls() { return controls_; }
  const TwipsScale& Scale() const { return scale_; }

  // Shows text while the pointer rests over the control or the box in it.
  void SetTip(int id, const std::wstring& text);
  std::wstring Tip(int id) const { return tips_.Text(Control(id)); }

  // The outer size that shows the whole inner area, in pixels, as far as the monitor has room.
  SIZE OuterSize() const;
  // The part of the monitor that windows may use.
  RECT WorkArea() const;

 private:
  void UseScale(UINT dpi);

  DialogPlan plan_{};
  ControlSet controls_;
  ToolTips tips_;
  TwipsScale scale_;
  UINT dpi_ = 96;
  FocusMemory focus_;
};

}  // namespace ui
