#include "ui/frmSetting.h"

#include <utility>

#include "ui/ControlIds.h"
#include "ui/DialogPlace.h"
#include "ui/SettingValues.h"

namespace ui {
namespace {

constexpr COLORREF kPageButtonColour = RGB(224, 224, 224);

bool IsPage(std::int32_t page) { return page >= 0 && page < kSettingPages; }

std::vector<ControlRow> Rows() {
  std::vector<ControlRow> rows;
  for (const SettingControl& control : SettingControls()) rows.push_back(control.row);
  return rows;
}

}  // namespace

frmSetting::frmSetting(settings::Settings& settings, capture::CaptureState& state,
                       std::function<void()> closed)
    : settings_(settings),
      state_(state),
      closed_(std::move(closed)),
      rows_(Rows()),
      option_(settings, [this] { ShowHotKey(); }) {}

void frmSetting::Show(HWND owner) {
  if (Handle() == nullptr && !Form_Load(owner)) return;
  ShowWindow(Handle(), SW_SHOW);
  // While the hot-key dialog is open, only that dialog can be used.
  SetForegroundWindow(GetLastActivePopup(Handle()));
}

bool frmSetting::Form_Load(HWND owner) {
  const TwipsScale screen{state_.TwipsPerPixelX, state_.TwipsPerPixelY};
  const POINT stored{screen.PixelsX(settings_.settingLeft), screen.PixelsY(settings_.settingTop)};
  const int page = IsPage(settings_.settingNo) ? settings_.settingNo : 0;
  DialogPlan plan{};
  plan.className = L"frmSetting";
  plan.caption = L"設定";
  plan.style = WS_THICKFRAME;
  plan.owner = owner;
  plan.innerWidth = kSettingInnerWidth;
  plan.innerHeight = kSettingInnerHeight;
  plan.corner = stored;
  plan.rows = rows_;
  plan.firstFocus = lblButton0 + page;
  if (!Open(plan)) return false;

  const POINT place = Reachable(stored, OuterSize(), WorkArea());
  SetWindowPos(Handle(), HWND_TOPMOST, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
  ShowPage(page);
  for (const SettingControl& control : SettingControls()) {
    const HWND window = Control(control.row.id);
    PrepareControl(control, window);
    ShowSetting(control, window, settings_);
    if (control.toolTip != nullptr) SetTip(control.row.id, control.toolTip);
  }
  ShowWhatDepends();
  ShowHotKey();
  return true;
}

LRESULT frmSetting::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      OnCommand(LOWORD(wParam), HIWORD(wParam));
      return Dialog::HandleMessage(message, wParam, lParam);
    case WM_DRAWITEM:
      PaintPageButton(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
      return TRUE;
    case WM_SIZE:
      Form_Resize();
      return 0;
    case WM_GETMINMAXINFO: {
      const SIZE least = OuterSize();
      reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {least.cx, least.cy};
      return 0;
    }
    case WM_CLOSE:
      // The hot-key dialog is modal, so it must be closed first.
      if (option_.Handle() == nullptr) Unload();
      return 0;
    default:
      return Dialog::HandleMessage(message, wParam, lParam);
  }
}

void frmSetting::OnCommand(int id, int notification) {
  if (id >= lblButton0 && id < lblButton0 + kSettingPages) {
    if (notification == BN_CLICKED) lblButton_Click(id - lblButton0);
  } else if (id == cmdHotKey) {
    if (notification == BN_CLICKED) cmdHotKey_Click();
  } else if (id == cmdClose) {
    if (notification == BN_CLICKED) cmdClose_Click();
  } else if (const SettingControl* const control = FindSettingControl(id); control != nullptr) {
    Change(*control, notification);
  }
}

void frmSetting::Form_Resize() {
  RECT inner{};
  GetClientRect(Handle(), &inner);
  const TwipsRect& button = FindSettingControl(cmdClose)->row.place;
  const TwipsScale& scale = Scale();
  Controls().Place(
      cmdClose,
      CloseButtonPlace(button, scale.TwipsX(inner.right), scale.TwipsY(inner.bottom), scale),
      scale);
}

void frmSetting::PaintPageButton(const DRAWITEMSTRUCT& item) const {
  const bool chosen = static_cast<std::int32_t>(item.CtlID) == lblButton0 + page_;
  const HDC dc = item.hDC;
  RECT area = item.rcItem;
  SetDCBrushColor(dc, chosen ? GetSysColor(COLOR_HIGHLIGHT) : kPageButtonColour);
  FillRect(dc, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
  FrameRect(dc, &area, GetSysColorBrush(COLOR_BTNSHADOW));
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, chosen ? GetSysColor(COLOR_HIGHLIGHTTEXT) : RGB(0, 0, 0));
  const std::wstring caption = WindowText(item.hwndItem);
  DrawTextW(dc, caption.c_str(), -1, &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
  if ((item.itemState & ODS_FOCUS) == 0 || (item.itemState & ODS_NOFOCUSRECT) != 0) return;
  InflateRect(&area, -3, -3);
  DrawFocusRect(dc, &area);
}

void frmSetting::lblButton_Click(std::int32_t page) {
  settings_.settingNo = page;
  ShowPage(page);
}

void frmSetting::ShowPage(std::int32_t page) {
  page_ = page;
  for (int i = 0; i < kSettingPages; ++i) {
    ShowWindow(Control(FrList0 + i), i == page ? SW_SHOWNA : SW_HIDE);
    InvalidateRect(Control(lblButton0 + i), nullptr, FALSE);
  }
}

void frmSetting::Change(const SettingControl& control, int notification) {
  if (!TellsChange(control, notification)) return;
  if (control.holds == Holds::TypedNumber) {
    txtShift_LostFocus();
  } else {
    Store(control, notification);
  }
  ShowWhatDepends();
}

void frmSetting::txtShift_LostFocus() {
  for (const int id : {txtShift0, txtShift1}) Store(*FindSettingControl(id), EN_KILLFOCUS);
}

void frmSetting::Store(const SettingControl& control, int notification) {
  const bool changed = StoreSetting(control, Control(control.row.id), notification, settings_);
  // The panes should follow the new setting.
  if (changed && state_.CaptureRunning) state_.RefreshRequest = 1;
}

void frmSetting::ShowWhatDepends() {
  const int onAutoStop = settings_.autoStopTime != 0 ? SW_SHOWNA : SW_HIDE;
  ShowWindow(Control(chkAutoClose), onAutoStop);
  ShowWindow(Control(chkChime), onAutoStop);
  ShowWindow(Control(frShift), settings_.shift == 1 ? SW_SHOWNA : SW_HIDE);
}

void frmSetting::ShowHotKey() { SetWindowTextW(Control(lblHotKey), settings_.hotkey.c_str()); }

void frmSetting::cmdHotKey_Click() { option_.Show(Handle()); }

void frmSetting::cmdClose_Click() {
  // The close box of the window does not do this. Odd, and stays: docs/ODDITIES.md.
  RECT place{};
  GetWindowRect(Handle(), &place);
  const TwipsScale screen{state_.TwipsPerPixelX, state_.TwipsPerPixelY};
  settings_.settingLeft = screen.TwipsX(place.left);
  settings_.settingTop = screen.TwipsY(place.top);
  Unload();
}

void frmSetting::Unload() {
  // A box may still have the focus, with a number that is not stored yet.
  txtShift_LostFocus();
  Close();
  closed_();
}

}  // namespace ui
