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

}  // namespace

Held::Held(WORD virtualKey) : virtualKey_(virtualKey) { Send(virtualKey, 0); }

Held::~Held() { Send(virtualKey_, KEYEVENTF_KEYUP); }

void Stroke(std::initializer_list<WORD> virtualKeys, Milliseconds hold) {
  for (const WORD key : virtualKeys) Send(key, 0);
  Last(hold);
  for (auto key = std::rbegin(virtualKeys); key != std::rend(virtualKeys); ++key) {
    Send(*key, KEYEVENTF_KEYUP);
  }
}

void Reset() {
  for (int key = 1; key < 255; ++key) {
    if (GetAsyncKeyState(key) < 0) Send(static_cast<WORD>(key), KEYEVENTF_KEYUP);
  }
}

}  // namespace gui::keys
