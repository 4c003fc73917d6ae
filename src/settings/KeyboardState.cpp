#include "settings/KeyboardState.h"

#include <windows.h>

namespace settings {
namespace {

class AsyncKeyboard : public KeyboardState {
 public:
  short AsyncKeyState(int virtualKey) const override { return GetAsyncKeyState(virtualKey); }
};

}  // namespace

const KeyboardState& SystemKeyboard() {
  static const AsyncKeyboard keyboard;
  return keyboard;
}

}  // namespace settings
