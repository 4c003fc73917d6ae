#include "ui/EditBehaviour.h"

#include <commctrl.h>

#include <string>

#include "platform/Clipboard.h"
#include "ui/Controls.h"

namespace ui {
namespace {

constexpr UINT_PTR kSubclass = 1;
constexpr WPARAM kNoLimit = 0x7FFFFFFE;  // the most that EM_SETLIMITTEXT takes
constexpr WPARAM kCtrlC = 3;             // the character that Ctrl+C types

std::wstring SelectedText(HWND box) {
  DWORD start = 0;
  DWORD end = 0;
  SendMessageW(box, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  return WindowText(box).substr(start, end - start);
}

int ModifierKeys() {
  const auto isDown = [](int key) { return GetKeyState(key) < 0; };
  return (isDown(VK_SHIFT) ? kShiftDown : 0) + (isDown(VK_CONTROL) ? kCtrlDown : 0) +
         (isDown(VK_MENU) ? kAltDown : 0);
}

void TellRoot(HWND box, DWORD_PTR root, WORD notification) {
  const auto id = static_cast<WORD>(GetDlgCtrlID(box));
  SendMessageW(reinterpret_cast<HWND>(root), WM_COMMAND, MAKEWPARAM(id, notification),
               reinterpret_cast<LPARAM>(box));
}

LRESULT CALLBACK BoxProcedure(HWND box, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                              DWORD_PTR root) noexcept {
  switch (message) {
    case WM_GETDLGCODE:
      return DefSubclassProc(box, message, wParam, lParam) &
             ~(DLGC_WANTALLKEYS | DLGC_WANTTAB | DLGC_HASSETSEL);
    case WM_KEYDOWN:
      MyGetLevel(box, wParam, ModifierKeys());
      return DefSubclassProc(box, message, wParam, lParam);
    case WM_CHAR:
      // The key has been handled; the box would copy a second time, and also with other modifiers.
      return wParam == kCtrlC ? 0 : DefSubclassProc(box, message, wParam, lParam);
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK: {
      const LRESULT result = DefSubclassProc(box, message, wParam, lParam);
      TellRoot(box, root, message == WM_LBUTTONUP ? kBoxClick : kBoxDoubleClick);
      return result;
    }
    case WM_NCDESTROY:
      RemoveWindowSubclass(box, BoxProcedure, kSubclass);
      return DefSubclassProc(box, message, wParam, lParam);
    default:
      return DefSubclassProc(box, message, wParam, lParam);
  }
}

}  // namespace

void MyGetLevel(HWND box, WPARAM keyCode, int shift) {
  if (keyCode != 'C' || shift != kCtrlDown) return;
  try {
    platform::PutTextOnClipboard(GetAncestor(box, GA_ROOT), SelectedText(box));
  } catch (...) {
    // Without memory for the text the clipboard stays as it was.
  }
}

void AddEditBehaviour(HWND box, HWND root) {
  SendMessageW(box, EM_SETLIMITTEXT, kNoLimit, 0);
  SetWindowSubclass(box, BoxProcedure, kSubclass, reinterpret_cast<DWORD_PTR>(root));
}

}  // namespace ui
