// The keyboard, pressed the way a hand does it.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <vector>

#include "driver/WaitFor.h"

namespace gui::keys {

// How long a key stays down: longer than a program needs that looks at the keyboard every 10 ms
// on a busy machine, shorter than the key repeat (about 660 ms).
inline constexpr Milliseconds kHold{400};

// Presses the keys in order, holds them, lets them go in reverse order. The pointer must not move
// meanwhile: with the pointer moving into a window the system lets modifiers go by itself.
void Stroke(std::initializer_list<WORD> virtualKeys, Milliseconds hold = kHold);

// Holds one key down as long as it lives.
class Held {
 public:
  explicit Held(WORD virtualKey);
  ~Held();
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;

 private:
  WORD virtualKey_;
};

// Forgets the presses that GetAsyncKeyState still remembers, and lets every key go.
void Reset();

}  // namespace gui::keys
