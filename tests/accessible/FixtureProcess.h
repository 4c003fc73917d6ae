// The accessible fixture, run in a process of its own.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "driver/ChildProcess.h"
#include "driver/Control.h"

namespace accessible {

class FixtureProcess {
 public:
  // words: of its command line, see FixtureMain.cpp. Waits until its window stands. Throws
  // std::runtime_error when that does not come about.
  explicit FixtureProcess(std::string_view words);

  HWND Window() const { return window_; }
  gui::Control Control() const { return {window_, "the accessible fixture"}; }
  gui::ChildProcess& Process() { return process_; }
  bool IsRunning() const { return process_.IsRunning(); }

  // What was done to its objects so far: "ACTION@TICK;" each.
  std::string Actions() const;

 private:
  gui::ChildProcess process_;
  HWND window_ = nullptr;
};

}  // namespace accessible
