// Messages to browser windows with a time limit. A thread that answers nothing gets no messages for
// some seconds.
#pragma once

#include <windows.h>

#include "browser/BrowserCalls.h"

namespace MyInternetexplore {

constexpr UINT kLongestWaitMs = 2000;

// After a time-out: a thread that is only late with one message answers others at once.
constexpr UINT kSignOfLifeMs = 500;

// After this time the system itself treats a window as hung, and no message waits for it.
constexpr DWORD kSilenceMs = 5000;

// Longer than the time until the same report asks a window for its document again.
constexpr DWORD kLateMs = 1000;

class BoundedMessages {
 public:
  explicit BoundedMessages(BrowserCalls& calls) : calls_(calls) {}

  // Sends the message with both parameters 0 and returns the window's answer; 0 when there is none
  // within 2 s, or when its thread is known not to answer. After a time-out WM_NULL is sent as a
  // test. If that is answered within 0.5 s, this window gets no message for 1 s, so that one report
  // waits for it only once. If it times out too, the window's thread gets no messages for the next
  // 5 s.
  DWORD_PTR Send(HWND hwnd, UINT message);

  // Whether the window's thread answers at all; tests it, unless it is known not to answer. A
  // window that does not exist counts as answering, because nothing waits for it.
  bool Answers(HWND hwnd);

 private:
  enum class Outcome { kAnswered, kLate, kFailed };

  Outcome Ask(HWND hwnd, UINT message, UINT waitMs, DWORD_PTR& answer);
  // Sends WM_NULL, and notes a thread that does not answer it.
  void AskWhetherItLives(HWND hwnd, UINT waitMs);
  bool WasJustLate(HWND hwnd);
  bool IsSilent(HWND hwnd);

  BrowserCalls& calls_;
  HWND lateWindow_ = nullptr;
  DWORD lateSince_ = 0;
  DWORD silentThread_ = 0;  // 0: none
  DWORD silentSince_ = 0;
};

}  // namespace MyInternetexplore
