#include "ui/KeyFilter.h"

#include <commctrl.h>
#include <imm.h>

namespace ui {
namespace {

constexpr UINT_PTR kSubclass = 1;
constexpr wchar_t kBackspace = L'\b';

bool IsListOpen(HWND box) {
  return SendMessageW(GetParent(box), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
}

// Whether the key opens, closes or leaves a list, or chooses in it, and edits nothing.
bool WorksList(WPARAM key) {
  switch (key) {
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
    case VK_PRIOR:
    case VK_NEXT:
    case VK_HOME:
    case VK_END:
    case VK_RETURN:
    case VK_ESCAPE:
    case VK_F4:
    case VK_TAB:
      return true;
    default:
      return false;
  }
}

// Whether the character closes an open list, with the chosen or with the previous item.
bool EndsList(WPARAM character) { return character == VK_RETURN || character == VK_ESCAPE; }

bool Discards(HWND box, Typing typing, UINT message, WPARAM wParam) {
  switch (message) {
    case WM_CHAR:
      if (EndsList(wParam) && IsListOpen(box)) return false;
      return !Accepts(typing, static_cast<wchar_t>(wParam));
    case WM_KEYDOWN:
      return typing == Typing::Nothing && !WorksList(wParam);
    case WM_SYSKEYDOWN:
    case WM_SYSCHAR:
      return typing == Typing::Nothing && wParam == VK_BACK;  // Alt+Backspace undoes a change
    case WM_PASTE:
    case WM_CUT:
    case WM_CLEAR:
    case WM_UNDO:
    case EM_UNDO:
    case WM_CONTEXTMENU:
      return typing == Typing::Nothing;
    default:
      return false;
  }
}

LRESULT CALLBACK BoxProcedure(HWND box, UINT message, WPARAM wParam, LPARAM lParam,
                              UINT_PTR /*subclass*/, DWORD_PTR typing) noexcept {
  if (Discards(box, static_cast<Typing>(typing), message, wParam)) return 0;
  if (message == WM_NCDESTROY) RemoveWindowSubclass(box, BoxProcedure, kSubclass);
  return DefSubclassProc(box, message, wParam, lParam);
}

}  // namespace

bool Accepts(Typing typing, wchar_t character) {
  if (typing == Typing::Anything) return true;
  if (typing == Typing::Nothing) return false;
  if (character == kBackspace || (character >= L'0' && character <= L'9')) return true;
  return typing == Typing::DigitsAndMinus && character == L'-';
}

void FilterKeys(HWND box, Typing typing) {
  if (typing == Typing::Anything) return;
  // No input method, so that users need not switch it off to type a digit.
  ImmAssociateContext(box, nullptr);
  SetWindowSubclass(box, BoxProcedure, kSubclass, static_cast<DWORD_PTR>(typing));
}

HWND BoxOfList(HWND list) {
  COMBOBOXINFO info{};
  info.cbSize = sizeof info;
  if (!GetComboBoxInfo(list, &info) || info.hwndItem == list) return nullptr;
  return info.hwndItem;
}

}  // namespace ui
