#include "ui/EditBehaviour.h"

#include <commctrl.h>

namespace ui {
namespace {

constexpr UINT_PTR kSubclass = 1;
constexpr WPARAM kNoLimit = 0x7FFFFFFE;  // the most that EM_SETLIMITTEXT takes

LRESULT CALLBACK BoxProcedure(HWND box, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                              DWORD_PTR root) noexcept {
  switch (message) {
    case WM_GETDLGCODE:
      return DefSubclassProc(box, message, wParam, lParam) &
             ~(DLGC_WANTALLKEYS | DLGC_WANTTAB | DLGC_HASSETSEL);
    case WM_LBUTTONDBLCLK: {
      const auto id = static_cast<WORD>(GetDlgCtrlID(box));
      if (SendMessageW(reinterpret_cast<HWND>(root), WM_COMMAND, MAKEWPARAM(id, kBoxDoubleClick),
                       reinterpret_cast<LPARAM>(box)) != 0) {
        return 0;
      }
      return DefSubclassProc(box, message, wParam, lParam);
    }
    case WM_NCDESTROY:
      RemoveWindowSubclass(box, BoxProcedure, kSubclass);
      return DefSubclassProc(box, message, wParam, lParam);
    default:
      return DefSubclassProc(box, message, wParam, lParam);
  }
}

}  // namespace

void AddEditBehaviour(HWND box, HWND root) {
  SendMessageW(box, EM_SETLIMITTEXT, kNoLimit, 0);
  SetWindowSubclass(box, BoxProcedure, kSubclass, reinterpret_cast<DWORD_PTR>(root));
}

}  // namespace ui
