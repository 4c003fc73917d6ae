#include "extract/ControlAccess.h"

namespace extract {

std::int32_t ControlMessages::Send(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  // Some handles come from controls of other programs; none may turn this into a broadcast.
  const LRESULT answer = hwnd == HWND_BROADCAST ? 0 : SendMessageW(hwnd, message, wParam, lParam);
  // A window that is gone gives 0, but 0 is also a valid answer.
  if (answer == 0 && !IsWindow(hwnd)) throw TargetLost();
  return static_cast<std::int32_t>(answer);
}

DWORD ControlMessages::ProcessOf(HWND hwnd) {
  DWORD processId = 0;
  GetWindowThreadProcessId(hwnd, &processId);
  return processId;
}

DWORD ControlMessages::StyleOf(HWND hwnd) {
  return static_cast<DWORD>(GetWindowLongPtrW(hwnd, GWL_STYLE));
}

const ControlAccess& SystemAccess() {
  static ControlMessages messages;
  static const ControlAccess access{messages, MyMapView::SystemMemoryCalls()};
  return access;
}

}  // namespace extract
