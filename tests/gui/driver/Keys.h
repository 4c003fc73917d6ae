// The keyboard, pressed as by a hand.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <vector>

#include "driver/WaitFor.h"

namespace gui::keys {

// How long a key stays down: longer than a program needs that looks at the keyboard every 10 ms
// on a busy machine, shorter than the key repeat (about 660 ms).
inline constexpr Milliseconds kHold{400};

// Presses the keys in order, holds them, releases them in reverse order. The pointer must not move
// meanwhile: when it moves into a window, the system releases modifiers.
void Stroke(std::initializer_list<WORD> virtualKeys, Milliseconds hold = kHold);

// Holds one key down as long as it exists.
class Held {
 public:
  explicit Held(WORD virtualKey);
  ~Held();
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;

 private:
  WORD virtualKey_;
};

// Clears the presses that GetAsyncKeyState still remembers, and releases every key.
void Reset();

}  // namespace gui::keys
