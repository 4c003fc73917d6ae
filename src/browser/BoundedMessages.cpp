#include "browser/BoundedMessages.h"

namespace MyInternetexplore {

BoundedMessages::Outcome BoundedMessages::Ask(HWND hwnd, UINT message, UINT waitMs,
                                              DWORD_PTR& answer) {
  // Distinguishes a time-out from other failures; when the window goes away the call sets no error.
  SetLastError(ERROR_INVALID_WINDOW_HANDLE);
  const LRESULT sent =
      calls_.SendMessageTimeoutA(hwnd, message, 0, 0, SMTO_ABORTIFHUNG, waitMs, &answer);
  const DWORD error = GetLastError();
  if (sent != 0) return Outcome::kAnswered;
  return error == ERROR_TIMEOUT ? Outcome::kLate : Outcome::kFailed;
}

DWORD_PTR BoundedMessages::Send(HWND hwnd, UINT message) {
  if (IsSilent(hwnd) || WasJustLate(hwnd)) return 0;
  DWORD_PTR answer = 0;
  const Outcome outcome = Ask(hwnd, message, kLongestWaitMs, answer);
  if (outcome == Outcome::kLate) {
    AskWhetherItLives(hwnd, kSignOfLifeMs);
    lateWindow_ = hwnd;
    lateSince_ = calls_.GetTickCount();
  }
  return outcome == Outcome::kAnswered ? answer : 0;
}

bool BoundedMessages::Answers(HWND hwnd) {
  if (!IsSilent(hwnd)) AskWhetherItLives(hwnd, kLongestWaitMs);
  return !IsSilent(hwnd);
}

void BoundedMessages::AskWhetherItLives(HWND hwnd, UINT waitMs) {
  DWORD_PTR answer = 0;
  if (Ask(hwnd, WM_NULL, waitMs, answer) != Outcome::kLate) return;
  silentThread_ = calls_.GetWindowThreadProcessId(hwnd, nullptr);
  silentSince_ = calls_.GetTickCount();
}

bool BoundedMessages::WasJustLate(HWND hwnd) {
  return hwnd == lateWindow_ && calls_.GetTickCount() - lateSince_ < kLateMs;
}

bool BoundedMessages::IsSilent(HWND hwnd) {
  return silentThread_ != 0 && calls_.GetWindowThreadProcessId(hwnd, nullptr) == silentThread_ &&
         calls_.GetTickCount() - silentSince_ < kSilenceMs;
}

}  // namespace MyInternetexplore
