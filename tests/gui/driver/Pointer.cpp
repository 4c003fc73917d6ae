#include "driver/Pointer.h"

#include "driver/WaitFor.h"

namespace gui::pointer {
namespace {

void SendButton(DWORD flag) {
  INPUT input = {};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flag;
  SendInput(1, &input, sizeof input);
}

}  // namespace

void MoveTo(POINT point) {
  Require(WaitFor("the pointer arrives", [&](std::string& seen) {
    SetCursorPos(point.x, point.y);
    POINT now = {};
    GetCursorPos(&now);
    seen = std::to_string(now.x) + "," + std::to_string(now.y);
    return now.x == point.x && now.y == point.y;
  }));
}

void Press(POINT point) {
  MoveTo(point);
  SendButton(MOUSEEVENTF_LEFTDOWN);
}

void Release() { SendButton(MOUSEEVENTF_LEFTUP); }

void Click(POINT point) {
  Press(point);
  Release();
}

void DoubleClick(POINT point) {
  Click(point);
  SendButton(MOUSEEVENTF_LEFTDOWN);
  Release();
}

void Drag(POINT from, POINT to, const std::function<void()>& beforeRelease) {
  constexpr int kSteps = 8;
  Press(from);
  for (int step = 1; step <= kSteps; ++step) {
    MoveTo({from.x + (to.x - from.x) * step / kSteps, from.y + (to.y - from.y) * step / kSteps});
  }
  // A hand trembles before it lets go: should the last step have been swallowed, this makes up.
  for (const LONG tremble : {1, 0}) {
    Last(Milliseconds(20));
    MoveTo({to.x + tremble, to.y});
  }
  beforeRelease();
  Release();
}

void Park() { MoveTo({3, GetSystemMetrics(SM_CYSCREEN) - 3}); }

}  // namespace gui::pointer
