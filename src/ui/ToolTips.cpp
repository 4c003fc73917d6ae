#include "ui/ToolTips.h"

#include <commctrl.h>

#include <array>

namespace ui {
namespace {

// The oldest size of the structure, which every version of the common controls accepts.
const UINT kToolSize = TTTOOLINFOW_V1_SIZE;
constexpr UINT kWidthAt96Dpi = 400;  // pixels

TTTOOLINFOW ToolFor(HWND owner, HWND control) {
  TTTOOLINFOW tool{};
  tool.cbSize = kToolSize;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = owner;
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  return tool;
}

}  // namespace

void ToolTips::Create(HWND owner, UINT dpi) {
  owner_ = owner;
  // Not owned by it: the system puts the owner of a topmost window behind that window instead of
  // into the topmost band.
  window_ = platform::UniqueWindow(CreateWindowExW(
      WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0, 0,
      nullptr, nullptr, GetModuleHandleW(nullptr), nullptr));
  SendMessageW(window_.Get(), TTM_SETMAXTIPWIDTH, 0, static_cast<LPARAM>(kWidthAt96Dpi * dpi / 96));
}

void ToolTips::Set(HWND control, const std::wstring& text) {
  TTTOOLINFOW tool = ToolFor(owner_, control);
  tool.lpszText = const_cast<wchar_t*>(text.c_str());
  const bool known = controls_.contains(control);
  SendMessageW(window_.Get(), known ? TTM_UPDATETIPTEXTW : TTM_ADDTOOLW, 0,
               reinterpret_cast<LPARAM>(&tool));
  controls_.insert(control);
}

std::wstring ToolTips::Text(HWND control) const {
  if (!controls_.contains(control)) return {};
  std::array<wchar_t, 1024> text{};
  TTTOOLINFOW tool = ToolFor(owner_, control);
  tool.lpszText = text.data();
  SendMessageW(window_.Get(), TTM_GETTEXTW, text.size(), reinterpret_cast<LPARAM>(&tool));
  return text.data();
}

}  // namespace ui
