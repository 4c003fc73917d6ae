#include "browser/BoundedMessages.h"

namespace MyInternetexplore {

DWORD_PTR BoundedMessages::Send(HWND hwnd, UINT message) {
  if (IsSilent(hwnd)) return 0;
  DWORD_PTR answer = 0;
  // Tells "no answer in time" from other failures; windows that go away leave it as it is.
  SetLastError(ERROR_INVALID_WINDOW_HANDLE);
  const LRESULT sent =
      calls_.SendMessageTimeoutA(hwnd, message, 0, 0, SMTO_ABORTIFHUNG, kLongestWaitMs, &answer);
  const DWORD error = GetLastError();
  if (sent != 0) return answer;
  NoteIfSilent(hwnd, error);
  return 0;
}

bool BoundedMessages::Answers(HWND hwnd) {
  Send(hwnd, WM_NULL);
  return !IsSilent(hwnd);
}

bool BoundedMessages::IsSilent(HWND hwnd) {
  return silentThread_ != 0 && calls_.GetWindowThreadProcessId(hwnd, nullptr) == silentThread_ &&
         calls_.GetTickCount() - silentSince_ < kSilenceMs;
}

void BoundedMessages::NoteIfSilent(HWND hwnd, DWORD error) {
  if (error != ERROR_TIMEOUT) return;
  silentThread_ = calls_.GetWindowThreadProcessId(hwnd, nullptr);
  silentSince_ = calls_.GetTickCount();
}

}  // namespace MyInternetexplore
