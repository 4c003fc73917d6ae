// Names of keys, keys that are held, and synthesised key strokes.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "settings/KeyboardState.h"

namespace MyKeyboard {

// The key's name on a Japanese keyboard by virtual-key code, 0 to 256. A code without a name gives
// an empty text, as does one out of range.
std::wstring_view KeyName(std::int32_t virtualKey);

// GetAsyncKeyState of virtualKey ANDed with mask is not 0 (mask 0x8000: the key is down now).
bool IsKeyHeld(std::int32_t virtualKey, std::int32_t mask, const settings::KeyboardState& keyboard);

struct KeyStroke {
  WORD virtualKey;
  bool up;
};

// The keyboard input records of strokes. Every key carries the extended-key flag, extended or not.
std::vector<INPUT> KeyInputs(std::span<const KeyStroke> strokes);

// SendInput, or a test's replacement.
using InputCall = std::function<UINT(UINT count, INPUT* records, int size)>;

// Sends strokes in one SendInput call; returns how many were taken.
UINT sKeyEventSet(std::span<const KeyStroke> strokes, const InputCall& sendInput = SendInput);

// Ctrl+Home, then Ctrl+Shift+End: selects the whole text of the box that has the focus.
std::span<const KeyStroke> SelectAllStrokes();

}  // namespace MyKeyboard
