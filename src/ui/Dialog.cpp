#include "ui/Dialog.h"

#include <algorithm>

#include "platform/MessagePump.h"
#include "ui/KeyFilter.h"

namespace ui {
namespace {

constexpr DWORD kStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
constexpr DWORD kExStyle = WS_EX_TOPMOST | WS_EX_CONTROLPARENT;

}  // namespace

Dialog::~Dialog() { platform::RemoveDialog(Handle()); }

bool Dialog::Open(const DialogPlan& plan) {
  plan_ = plan;
  WindowPlan window{plan.className};
  window.caption = plan.caption;
  window.style = kStyle | plan.style;
  window.exStyle = kExStyle;
  window.parentOrOwner = plan.owner;
  window.background = GetSysColorBrush(COLOR_BTNFACE);
  window.place = {plan.corner.x, plan.corner.y, 0, 0};
  if (!Create(window)) return false;
  platform::AddDialog(Handle());
  UseScale(GetDpiForWindow(Handle()));
  controls_.Create(Handle(), plan.rows, dpi_);
  tips_.Create(Handle(), dpi_);
  const SIZE size = OuterSize();
  SetWindowPos(Handle(), nullptr, 0, 0, size.cx, size.cy,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  return true;
}

void Dialog::Close() {
  // Before the system destroys the tips' window, which tips_ owns.
  tips_ = {};
  DestroyWindow(Handle());
}

LRESULT Dialog::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_ACTIVATE:
      focus_.OnActivate(Handle(), LOWORD(wParam) != WA_INACTIVE, Control(plan_.firstFocus));
      return 0;
    case DM_GETDEFID:
      return DefaultButton(plan_.defaultButton);
    case WM_COMMAND:
      return 0;
    case WM_DPICHANGED: {
      const RECT& suggested = *reinterpret_cast<const RECT*>(lParam);
      UseScale(LOWORD(wParam));
      controls_.ApplyDpi(dpi_);
      SetWindowPos(Handle(), nullptr, suggested.left, suggested.top,
                   suggested.right - suggested.left, suggested.bottom - suggested.top,
                   SWP_NOZORDER | SWP_NOACTIVATE);
      return 0;
    }
    case WM_DESTROY:
      platform::RemoveDialog(Handle());
      return 0;
    default:
      return Default(message, wParam, lParam);
  }
}

void Dialog::SetTip(int id, const std::wstring& text) {
  tips_.Set(Control(id), text);
  // The pointer over a drop-down list is mostly over the box in it.
  const HWND box = BoxOfList(Control(id));
  if (box != nullptr) tips_.Set(box, text);
}

SIZE Dialog::OuterSize() const {
  RECT outer = scale_.Pixels({0, 0, plan_.innerWidth, plan_.innerHeight});
  AdjustWindowRectExForDpi(&outer, kStyle | plan_.style, FALSE, kExStyle, dpi_);
  const RECT work = WorkArea();
  return {outer.right - outer.left, std::min(outer.bottom - outer.top, work.bottom - work.top)};
}

RECT Dialog::WorkArea() const {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(Handle(), MONITOR_DEFAULTTONEAREST), &monitor);
  return monitor.rcWork;
}

void Dialog::UseScale(UINT dpi) {
  dpi_ = dpi;
  scale_ = ScaleForDpi(dpi);
}

}  // namespace ui
