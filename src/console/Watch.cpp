#include "console/Watch.h"

#include "capture/CaptureState.h"
#include "capture/RestTracker.h"
#include "platform/UniqueHandle.h"

namespace console {
namespace {

constexpr DWORD kBetweenLooks = 10;  // milliseconds

// The system calls the handler without a parameter.
HANDLE endAsked = nullptr;

BOOL WINAPI EndAsked(DWORD) { return SetEvent(endAsked); }

}  // namespace

void Watch(const std::function<bool(POINT)>& read) {
  const platform::UniqueKernelHandle ended(CreateEventW(nullptr, TRUE, FALSE, nullptr));
  endAsked = ended.Get();
  SetConsoleCtrlHandler(EndAsked, TRUE);
  capture::RestTracker tracker;
  std::int32_t state = capture::kMoved;
  bool goesOn = true;
  while (goesOn && WaitForSingleObject(ended.Get(), kBetweenLooks) == WAIT_TIMEOUT) {
    POINT point{};
    if (!GetCursorPos(&point)) continue;
    const DWORD tick = GetTickCount();
    // With this tick as that of the last report nothing is reported again.
    state = tracker.Observe(point, tick, tick, state);
    if (state != capture::kDue) continue;
    state = capture::kReported;
    goesOn = read(point);
  }
  SetConsoleCtrlHandler(EndAsked, FALSE);
}

}  // namespace console
