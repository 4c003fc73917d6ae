// The hot keys: their list, from name to code, and whether one was pressed. Nothing is registered
// with the system; the keyboard is polled.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "settings/KeyboardState.h"

namespace MySub_HotKey {

// A hot-key code: virtual-key code in bits 0 to 7, a modifier above.
constexpr std::int32_t kAlt = 0x10000;
constexpr std::int32_t kCtrl = 0x20000;
constexpr std::int32_t kShift = 0x40000;

constexpr std::int32_t kAltT = 0x10054;
constexpr std::int32_t kCtrlA = 0x20041;

// The keys that can be chosen; entry 0 is empty.
constexpr std::size_t kHotKeyCount = 29;
extern const std::array<std::wstring_view, kHotKeyCount> HotKeyNames;
extern const std::array<std::int32_t, kHotKeyCount> HotKeyCodes;

// The code of the first entry called name; 0 when there is none.
std::int32_t HotKeyCode(std::wstring_view name);

// Whether the key of code was pressed since the last query, with its modifier down; a code without
// a modifier needs Alt, Ctrl and Shift up, one with a modifier does not look at the others. Holding
// the key down does not repeat it.
bool HotKeyPressed(std::int32_t code, const settings::KeyboardState& keyboard);

}  // namespace MySub_HotKey
