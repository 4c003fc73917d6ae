// Uses the controls of a dialog in the test's own process.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <array>
#include <string>

#include "extract/Win32API_Window.h"
#include "ui/Controls.h"
#include "ui/KeyFilter.h"

namespace ui {

namespace driving {

struct ControlSearch {
  int id;
  HWND found;
};

inline BOOL CALLBACK MatchId(HWND child, LPARAM context) {
  auto& search = *reinterpret_cast<ControlSearch*>(context);
  if (GetDlgCtrlID(child) != search.id) return TRUE;
  search.found = child;
  return FALSE;
}

inline BOOL CALLBACK MatchTips(HWND window, LPARAM context) {
  if (Win32API_Window::MyGetClassName(window) != TOOLTIPS_CLASSW) return TRUE;
  *reinterpret_cast<HWND*>(context) = window;
  return FALSE;
}

}  // namespace driving

inline HWND FindControl(HWND dialog, int id) {
  driving::ControlSearch search{id, nullptr};
  EnumChildWindows(dialog, driving::MatchId, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

// The tool tip of that control, while no other window of the test has tool tips.
inline std::wstring TipOf(HWND dialog, HWND control) {
  HWND tips = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), driving::MatchTips, reinterpret_cast<LPARAM>(&tips));
  std::array<wchar_t, 1024> text{};
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.hwnd = dialog;
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  tool.lpszText = text.data();
  SendMessageW(tips, TTM_GETTEXTW, text.size(), reinterpret_cast<LPARAM>(&tool));
  return text.data();
}

inline void Click(HWND button) { SendMessageW(button, BM_CLICK, 0, 0); }

// Chooses an item as a click in the open list does.
inline void ChooseItem(HWND list, int index) {
  SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
  const auto id = static_cast<WORD>(GetDlgCtrlID(list));
  SendMessageW(GetParent(list), WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE),
               reinterpret_cast<LPARAM>(list));
}

inline std::wstring ItemText(HWND list, int index) {
  std::array<wchar_t, 128> text{};
  SendMessageW(list, CB_GETLBTEXT, static_cast<WPARAM>(index),
               reinterpret_cast<LPARAM>(text.data()));
  return text.data();
}

// Replaces the text of an edit control, or of the one in a drop-down list, by typing.
inline void Type(HWND control, const std::wstring& text) {
  const HWND inList = BoxOfList(control);
  const HWND box = inList == nullptr ? control : inList;
  SendMessageW(box, EM_SETSEL, 0, -1);
  SendMessageW(box, WM_CHAR, L'\b', 0);
  for (const wchar_t character : text) SendMessageW(box, WM_CHAR, character, 0);
}

}  // namespace ui
