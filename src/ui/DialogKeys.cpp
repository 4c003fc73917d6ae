#include "ui/DialogKeys.h"

namespace ui {

void FocusMemory::OnActivate(HWND window, bool active, HWND first) {
  if (!active) {
    const HWND focus = GetFocus();
    if (IsChild(window, focus)) focus_ = focus;
    return;
  }
  const bool usable = IsChild(window, focus_) && IsWindowVisible(focus_);
  SetFocus(usable ? focus_ : first);
}

LRESULT DefaultButton(int otherwise) {
  const HWND focus = GetFocus();
  const LRESULT code = SendMessageW(focus, WM_GETDLGCODE, 0, 0);
  const bool isButton = (code & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
  const int id = isButton ? GetDlgCtrlID(focus) : otherwise;
  return id == 0 ? 0 : MAKELRESULT(id, DC_HASDEFID);
}

}  // namespace ui
