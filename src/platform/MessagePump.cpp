#include "platform/MessagePump.h"

#include <algorithm>
#include <vector>

namespace platform {
namespace {

std::vector<HWND>& Dialogs() {
  static std::vector<HWND> dialogs;
  return dialogs;
}

// Whether the message was a key for a dialog and has been handled.
bool IsForDialog(MSG& message) {
  // Timer messages are frequent and never for a dialog.
  if (message.message == WM_TIMER) return false;
  for (const HWND dialog : Dialogs()) {
    if (message.hwnd != dialog && !IsChild(dialog, message.hwnd)) continue;
    // Another program may press a button on a hidden page and so give it the focus. From there the
    // system's search for an access key may loop forever among the visible controls.
    return IsWindowVisible(message.hwnd) && IsDialogMessageW(dialog, &message);
  }
  return false;
}

void Dispatch(MSG& message) {
  if (IsForDialog(message)) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

}  // namespace

void AddDialog(HWND window) { Dialogs().push_back(window); }

void RemoveDialog(HWND window) { std::erase(Dialogs(), window); }

void Pump() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    Dispatch(message);
  }
}

int RunMessageLoop() {
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) Dispatch(message);
  return static_cast<int>(message.wParam);
}

}  // namespace platform
