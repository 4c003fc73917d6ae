// The tool tips of one window's controls.
#pragma once

#include <windows.h>

#include <set>
#include <string>

#include "platform/UniqueHandle.h"

namespace ui {

class ToolTips {
 public:
  // Tips belong to owner's controls; lines are broken at a width that suits dpi.
  void Create(HWND owner, UINT dpi);

  // Shows text while the pointer rests over control; an empty text removes the tip.
  void Set(HWND control, const std::wstring& text);

  // What Set was last given for control, up to 1023 characters.
  std::wstring Text(HWND control) const;

 private:
  HWND owner_ = nullptr;
  platform::UniqueWindow window_;
  std::set<HWND> controls_;
};

}  // namespace ui
