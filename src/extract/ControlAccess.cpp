#include "extract/ControlAccess.h"

namespace extract {

std::int32_t ControlMessages::Send(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  // Handles come from controls, too, and none may make this a message to every window there is.
  if (hwnd == HWND_BROADCAST) return 0;
  return static_cast<std::int32_t>(SendMessageW(hwnd, message, wParam, lParam));
}

DWORD ControlMessages::ProcessOf(HWND hwnd) {
  DWORD processId = 0;
  GetWindowThreadProcessId(hwnd, &processId);
  return processId;
}

const ControlAccess& SystemAccess() {
  static ControlMessages messages;
  static const ControlAccess access{messages, MyMapView::SystemMemoryCalls()};
  return access;
}

}  // namespace extract
