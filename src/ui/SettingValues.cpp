#include "ui/SettingValues.h"

#include <utility>

#include "platform/NumberText.h"

namespace ui {
namespace {

std::wstring ItemText(HWND list, WPARAM index) {
  const LRESULT length = SendMessageW(list, CB_GETLBTEXTLEN, index, 0);
  if (length == CB_ERR) return {};
  std::wstring text(static_cast<std::size_t>(length), L'\0');
  SendMessageW(list, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text.data()));
  return text;
}

WPARAM ChosenItem(HWND list) { return static_cast<WPARAM>(SendMessageW(list, CB_GETCURSEL, 0, 0)); }

// When an item has just been chosen, the box still has the previous text.
std::wstring ListText(HWND list, int notification) {
  return notification == CBN_SELCHANGE ? ItemText(list, ChosenItem(list)) : WindowText(list);
}

void ShowListNumber(const SettingControl& control, HWND list, std::int32_t value) {
  const bool hasBlank = control.items.front()[0] == L'\0';
  const std::wstring text = hasBlank && value == 0
                                ? std::wstring()
                                : platform::RightAligned(std::to_wstring(value),
                                                         static_cast<std::size_t>(control.number));
  for (std::size_t i = 0; i < control.items.size(); ++i) {
    if (text != control.items[i]) continue;
    SendMessageW(list, CB_SETCURSEL, i, 0);
    return;
  }
  SetWindowTextW(list, text.c_str());
}

}  // namespace

void PrepareControl(const SettingControl& control, HWND window) {
  for (const wchar_t* const item : control.items) {
    SendMessageW(window, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
  }
  if (control.typing != Typing::Anything) {
    const HWND box = BoxOfList(window);
    FilterKeys(box == nullptr ? window : box, control.typing);
  }
}

void ShowSetting(const SettingControl& control, HWND window, const settings::Settings& settings) {
  if (control.setting == nullptr) return;
  const std::int32_t value = settings.*control.setting;
  switch (control.holds) {
    case Holds::Nothing:
      break;
    case Holds::Box:
      SetBox(window, value);
      break;
    case Holds::Option:
      SetBox(window, value == control.number ? 1 : 0);
      break;
    case Holds::ListIndex:
      SendMessageW(window, CB_SETCURSEL, static_cast<WPARAM>(value), 0);
      break;
    case Holds::ListNumber:
      ShowListNumber(control, window, value);
      break;
    case Holds::TypedNumber:
      SetWindowTextW(window, std::to_wstring(value).c_str());
      break;
  }
}

bool TellsChange(const SettingControl& control, int notification) {
  switch (control.holds) {
    case Holds::Nothing:
      return false;
    case Holds::Box:
    case Holds::Option:
      return notification == BN_CLICKED;
    case Holds::ListIndex:
      return notification == CBN_SELCHANGE;
    case Holds::ListNumber:
      return notification == CBN_SELCHANGE || notification == CBN_EDITCHANGE;
    case Holds::TypedNumber:
      return notification == EN_KILLFOCUS;
  }
  return false;
}

bool StoreSetting(const SettingControl& control, HWND window, int notification,
                  settings::Settings& settings) {
  std::int32_t value = settings.*control.setting;
  switch (control.holds) {
    case Holds::Nothing:
      break;
    case Holds::Box:
      value = BoxValue(window);
      break;
    case Holds::Option:
      value = control.number;
      break;
    case Holds::ListIndex:
      value = static_cast<std::int32_t>(ChosenItem(window));
      break;
    case Holds::ListNumber:
      value = platform::LeadingNumber(ListText(window, notification));
      break;
    case Holds::TypedNumber:
      value = platform::LeadingNumber(WindowText(window));
      break;
  }
  return std::exchange(settings.*control.setting, value) != value;
}

}  // namespace ui
