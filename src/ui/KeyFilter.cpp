#include "ui/KeyFilter.h"

#include <commctrl.h>
#include <imm.h>

#include <algorithm>
#include <iterator>

namespace ui {
namespace {

constexpr UINT_PTR kSubclass = 1;
constexpr wchar_t kBackspace = L'\b';

bool IsListOpen(HWND box) {
  return SendMessageW(GetParent(box), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
}

// The keys that open, close or leave a list, or choose in it, and edit nothing.
constexpr WPARAM kListKeys[] = {VK_LEFT, VK_RIGHT, VK_UP,     VK_DOWN,   VK_PRIOR, VK_NEXT,
                                VK_HOME, VK_END,   VK_RETURN, VK_ESCAPE, VK_F4,    VK_TAB};

// Whether the character closes an open list, with the chosen or with the previous item.
bool EndsList(WPARAM character) { return character == VK_RETURN || character == VK_ESCAPE; }

bool Discards(HWND box, Typing typing, UINT message, WPARAM wParam) {
  switch (message) {
    case WM_CHAR:
      if (EndsList(wParam) && IsListOpen(box)) return false;
      return !Accepts(typing, static_cast<wchar_t>(wParam));
    case WM_KEYDOWN:
      return typing == Typing::Nothing &&
             std::ranges::find(kListKeys, wParam) == std::end(kListKeys);
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
