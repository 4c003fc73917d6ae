#include "ui/frmOption.h"

#include <utility>

#include "settings/MySub_HotKey.h"
#include "ui/ControlIds.h"
#include "ui/DialogPlace.h"
#include "ui/KeyFilter.h"

namespace ui {
namespace {

constexpr DWORD kTabStop = WS_VISIBLE | WS_TABSTOP;
constexpr DWORD kLabel = WS_VISIBLE | SS_NOPREFIX;
constexpr DWORD kCheck = kTabStop | BS_AUTOCHECKBOX;
constexpr DWORD kList = kTabStop | WS_VSCROLL | CBS_DROPDOWN | CBS_AUTOHSCROLL;

constexpr std::int32_t kInnerWidth = 4125;  // twips
constexpr std::int32_t kInnerHeight = 1605;

constexpr ControlRow kRows[] = {
    {lblHotKeyName, 0, L"STATIC", kLabel, L"開始/停止キー", {150, 225, 1350, 255}},
    {cmbHotKey, 0, L"COMBOBOX", kList, L"", {1530, 180, 2445, 3600}},
    {chkEnableHotT, 0, L"BUTTON", kCheck, L"Alt+T で前面に表示", {150, 645, 3825, 270}},
    {cmdClose0, 0, L"BUTTON", kTabStop | BS_DEFPUSHBUTTON, L"OK", {1575, 1080, 1140, 375}},
    {cmdClose1, 0, L"BUTTON", kTabStop | BS_PUSHBUTTON, L"キャンセル", {2835, 1080, 1140, 375}},
};

}  // namespace

frmOption::frmOption(settings::Settings& settings, std::function<void()> closed)
    : settings_(settings), closed_(std::move(closed)) {}

void frmOption::Show(HWND owner) {
  owner_ = owner;
  if (Handle() == nullptr && !Form_Load()) return;
  EnableWindow(owner_, FALSE);
  ShowWindow(Handle(), SW_SHOW);
  SetForegroundWindow(Handle());
}

bool frmOption::Form_Load() {
  RECT ownerPlace{};
  GetWindowRect(owner_, &ownerPlace);
  DialogPlan plan{};
  plan.className = L"frmOption";
  plan.caption = L"ホットキーの設定/変更";
  plan.owner = owner_;
  plan.innerWidth = kInnerWidth;
  plan.innerHeight = kInnerHeight;
  plan.corner = {ownerPlace.left, ownerPlace.top};
  plan.rows = kRows;
  plan.firstFocus = cmbHotKey;
  plan.defaultButton = cmdClose0;
  if (!Open(plan)) return false;

  const POINT place = Centred(OuterSize(), WorkArea());
  SetWindowPos(Handle(), nullptr, place.x, place.y, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  const HWND list = Control(cmbHotKey);
  SetWindowTextW(list, settings_.hotkey.c_str());
  FilterKeys(BoxOfList(list), Typing::Nothing);
  for (std::size_t i = 0; i < MySub_HotKey::kHotKeyCount; ++i) {
    const std::wstring name(MySub_HotKey::HotKeyNames[i]);
    SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
    if (name == settings_.hotkey) SendMessageW(list, CB_SETCURSEL, i, 0);
  }
  SetBox(Control(chkEnableHotT), settings_.enableHotT);
  hotTClicked_ = false;
  return true;
}

LRESULT frmOption::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  const int id = LOWORD(wParam);
  if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED &&
      (id == cmdClose0 || id == cmdClose1)) {
    cmdClose_Click(id - cmdClose0);
    return 0;
  }
  if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED && id == chkEnableHotT) {
    hotTClicked_ = true;
    return 0;
  }
  if (message == WM_CLOSE) {
    Unload();
    return 0;
  }
  return Dialog::HandleMessage(message, wParam, lParam);
}

void frmOption::cmdClose_Click(int index) {
  if (index == 0) {
    const LRESULT chosen = SendMessageW(Control(cmbHotKey), CB_GETCURSEL, 0, 0);
    if (chosen != CB_ERR) {
      settings_.hotkey = MySub_HotKey::HotKeyNames[static_cast<std::size_t>(chosen)];
      // Clears earlier presses of the key, which would start a capture now.
      MySub_HotKey::HotKeyPressed(MySub_HotKey::HotKeyCode(settings_.hotkey),
                                  settings::SystemKeyboard());
    }
    if (hotTClicked_) settings_.enableHotT = BoxValue(Control(chkEnableHotT));
  }
  Unload();
}

void frmOption::Unload() {
  // The owner first, so that the focus returns to it and not to another program.
  EnableWindow(owner_, TRUE);
  Close();
  closed_();
}

}  // namespace ui
