#include "driver/Keys.h"

namespace gui::keys {
namespace {

void Send(WORD virtualKey, DWORD flags) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = virtualKey;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = flags;
  SendInput(1, &input, sizeof input);
}

bool IsDown(int virtualKey) { return GetAsyncKeyState(virtualKey) < 0; }

// After a window has got the focus, the system soon releases every modifier that is not down on the
// real keyboard. Shift alone changes nothing in any window, so it is pressed until it stays down.
void WaitUntilModifiersStay() {
  constexpr int kTries = 20;
  for (int attempt = 0; attempt < kTries; ++attempt) {
    const Held shift(VK_SHIFT);
    if (Stays(
            "Shift is down", [](std::string&) { return IsDown(VK_SHIFT); }, Milliseconds(120))) {
      return;
    }
  }
}

}  // namespace

Held::Held(WORD virtualKey) : virtualKey_(virtualKey) { Send(virtualKey, 0); }

Held::~Held() { Send(virtualKey_, KEYEVENTF_KEYUP); }

void Stroke(std::initializer_list<WORD> virtualKeys, Milliseconds hold) {
  if (virtualKeys.size() > 1) WaitUntilModifiersStay();
  for (const WORD key : virtualKeys) Send(key, 0);
  Last(hold);
  for (auto key = std::rbegin(virtualKeys); key != std::rend(virtualKeys); ++key) {
    Send(*key, KEYEVENTF_KEYUP);
  }
}

void Reset() {
  for (int key = 1; key < 255; ++key) {
    if (IsDown(key)) Send(static_cast<WORD>(key), KEYEVENTF_KEYUP);
  }
}

}  // namespace gui::keys
