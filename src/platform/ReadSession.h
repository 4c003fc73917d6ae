// What a reader that takes its time is given beside the window it reads: where it shows how far it
// is, how it lets the program go on, and whether it shall.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <string_view>

namespace platform {

// Ends a text whose reading was interrupted.
constexpr std::wstring_view kInterrupted = L"・・・中断・・・";

struct ReadSession {
  // The window that the capture is on. It changes while the reader yields; a reader stops when it
  // finds another one than the window that it reads for. Null once no capture runs.
  const HWND& target;

  std::function<void(const std::wstring& text)> showProgress;

  // Works off the pending messages of this thread, once after every item.
  std::function<void()> yield;

  // False once the capture shall end.
  std::function<bool()> stillRunning;

  // The window that is read for: the one that the capture was on when the report began.
  HWND window = target;

  // The capture is on another window. One that has ended is on none.
  bool HasMovedOn() const { return target != nullptr && target != window; }

  // The reading shall end.
  bool Interrupted() const { return HasMovedOn() || !stillRunning(); }
};

}  // namespace platform
