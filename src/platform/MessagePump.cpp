#include "platform/MessagePump.h"

#include <algorithm>
#include <vector>

namespace platform {
namespace {

std::vector<HWND>& Dialogs() {
  static std::vector<HWND> dialogs;
  return dialogs;
}

// Whether the message was a key for the dialog, and is dealt with.
bool IsForDialog(MSG& message) {
  // Ticks come all the time, and are never for a dialog.
  if (message.message == WM_TIMER) return false;
  for (const HWND dialog : Dialogs()) {
    if (message.hwnd != dialog && !IsChild(dialog, message.hwnd)) continue;
    // Another program may press a button on a page that is not shown and so give it the focus. From
    // there the search for an access key need not end: it goes round among what is shown.
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
