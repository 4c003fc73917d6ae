#include "driver/Pointer.h"

#include <initializer_list>
#include <vector>

#include "driver/WaitFor.h"

namespace gui::pointer {
namespace {

// A pixel of the screen in the 65,536 steps of absolute positions.
LONG Absolute(LONG pixel, int metric) {
  const LONG size = GetSystemMetrics(metric);
  return (pixel * 65536 + size - 1) / size;
}

// All in one call and at one time: a pause between the clicks of a double click, on a machine that
// is busy, would make two single clicks of it. Every event has its position, because Wine may just
// have moved the pointer back to where a window that has opened or closed saw it last.
void SendButtons(POINT point, std::initializer_list<DWORD> flags) {
  const DWORD now = GetTickCount();
  std::vector<INPUT> inputs;
  for (const DWORD flag : flags) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dx = Absolute(point.x, SM_CXSCREEN);
    input.mi.dy = Absolute(point.y, SM_CYSCREEN);
    input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | flag;
    input.mi.time = now;
    inputs.push_back(input);
  }
  SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
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
  SendButtons(point, {MOUSEEVENTF_LEFTDOWN});
}

void Release(POINT point) { SendButtons(point, {MOUSEEVENTF_LEFTUP}); }

void Click(POINT point) {
  MoveTo(point);
  SendButtons(point, {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP});
}

void DoubleClick(POINT point) {
  MoveTo(point);
  SendButtons(point,
              {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP});
}

void Drag(POINT from, POINT to, const std::function<void()>& beforeRelease) {
  constexpr int kSteps = 8;
  Press(from);
  for (int step = 1; step <= kSteps; ++step) {
    MoveTo({from.x + (to.x - from.x) * step / kSteps, from.y + (to.y - from.y) * step / kSteps});
  }
  // One more small movement before the release, in case the last step was lost.
  for (const LONG tremble : {1, 0}) {
    Last(Milliseconds(20));
    MoveTo({to.x + tremble, to.y});
  }
  beforeRelease();
  Release(to);
}

void Park() { MoveTo({3, GetSystemMetrics(SM_CYSCREEN) - 3}); }

}  // namespace gui::pointer
