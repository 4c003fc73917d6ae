#include "settings/MySub_HotKey.h"

#include <windows.h>

#include <algorithm>

namespace MySub_HotKey {

const std::array<std::wstring_view, kHotKeyCount> HotKeyNames{
    L"",          L"PAUSE/BREAK", L"ESC",       L"F1",
    L"F2",        L"F3",          L"F4",        L"F5",
    L"F6",        L"F7",          L"F8",        L"F9",
    L"F10",       L"F11",         L"F12",       L"Shift+PAUSE/BREAK",
    L"Shift+ESC", L"Shift+F1",    L"Shift+F2",  L"Shift+F3",
    L"Shift+F4",  L"Shift+F5",    L"Shift+F6",  L"Shift+F7",
    L"Shift+F8",  L"Shift+F9",    L"Shift+F10", L"Shift+F11",
    L"Shift+F12",
};

const std::array<std::int32_t, kHotKeyCount> HotKeyCodes = [] {
  std::array<std::int32_t, kHotKeyCount> codes{0,     VK_PAUSE, VK_ESCAPE, VK_F1,  VK_F2,
                                               VK_F3, VK_F4,    VK_F5,     VK_F6,  VK_F7,
                                               VK_F8, VK_F9,    VK_F10,    VK_F11, VK_F12};
  constexpr std::size_t kSingleKeys = kHotKeyCount / 2;
  for (std::size_t i = 1; i <= kSingleKeys; ++i) codes[kSingleKeys + i] = kShift + codes[i];
  return codes;
}();

std::int32_t HotKeyCode(std::wstring_view name) {
  const auto found = std::ranges::find(HotKeyNames, name);
  if (found == HotKeyNames.end()) return 0;
  return HotKeyCodes[static_cast<std::size_t>(found - HotKeyNames.begin())];
}

bool HotKeyPressed(std::int32_t code, const settings::KeyboardState& keyboard) {
  if ((keyboard.AsyncKeyState(code & 0xFF) & 1) == 0) return false;
  const auto isDown = [&keyboard](int key) { return (keyboard.AsyncKeyState(key) & 0x8000) != 0; };
  const bool alt = isDown(VK_MENU);
  const bool ctrl = isDown(VK_CONTROL);
  const bool shift = isDown(VK_SHIFT);
  // A modifier does not look at the others. Odd, and stays: docs/ODDITIES.md.
  switch (code & ~0xFFFF) {
    case kAlt:
      return alt;
    case kCtrl:
      return ctrl;
    case kShift:
      return shift;
    default:
      return !alt && !ctrl && !shift;
  }
}

}  // namespace MySub_HotKey
