// Messages to browser windows that never wait long, and not twice: a thread that did not answer is
// left alone for a while.
#pragma once

#include <windows.h>

#include "browser/BrowserCalls.h"

namespace MyInternetexplore {

constexpr UINT kLongestWaitMs = 2000;

// From here on the system itself knows that a window hangs, and no message waits for it.
constexpr DWORD kSilenceMs = 5000;

class BoundedMessages {
 public:
  explicit BoundedMessages(BrowserCalls& calls) : calls_(calls) {}

  // Sends the message with both parameters 0 and gives the window's answer; 0 when it gives none
  // in time, or when its thread did not give one to a message of the last 5 s, which then is not
  // sent.
  DWORD_PTR Send(HWND hwnd, UINT message);

  // Whether the window's thread answers at all; asks it, unless it is known not to. A window that
  // does not exist answers: nobody waits for it.
  bool Answers(HWND hwnd);

 private:
  bool IsSilent(HWND hwnd);
  void NoteIfSilent(HWND hwnd, DWORD error);

  BrowserCalls& calls_;
  DWORD silentThread_ = 0;  // 0: none
  DWORD silentSince_ = 0;
};

}  // namespace MyInternetexplore
