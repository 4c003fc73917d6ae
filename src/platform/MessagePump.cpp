#include "platform/MessagePump.h"

#include <algorithm>
#include <vector>

namespace platform {
namespace {

std::vector<HWND>& Dialogs() {
  static std::vector<HWND> dialogs;
  return dialogs;
}

void Dispatch(MSG& message) {
  const std::vector<HWND>& dialogs = Dialogs();
  for (const HWND dialog : dialogs) {
    if (message.hwnd != dialog && !IsChild(dialog, message.hwnd)) continue;
    // Another program may press a button on a page that is not shown and so give it the focus. From
    // there the search for an access key need not end: it goes round among what is shown.
    if (!IsWindowVisible(message.hwnd)) break;
    if (IsDialogMessageW(dialog, &message)) return;
    break;
  }
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
