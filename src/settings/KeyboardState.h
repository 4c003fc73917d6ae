// The keyboard as the polled keys see it.
#pragma once

#include <windows.h>

#include "platform/Interface.h"

namespace settings {

// Answers as GetAsyncKeyState does for a virtual key: bit 15 is set while it is down, bit 0 when
// it was pressed since the last query.
class KeyboardState : public platform::Interface {
 public:
  virtual short AsyncKeyState(int virtualKey) const { return GetAsyncKeyState(virtualKey); }
};

// The real keyboard.
inline const KeyboardState& SystemKeyboard() {
  static const KeyboardState keyboard{};
  return keyboard;
}

}  // namespace settings
