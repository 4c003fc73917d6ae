// The accessible fixture, run in its own process.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "driver/Control.h"
#include "driver/FixtureProcess.h"

namespace accessible {

class FixtureProcess {
 public:
  // words: of its command line, see FixtureMain.cpp. Waits until its window exists. Throws
  // std::runtime_error when that does not happen.
  explicit FixtureProcess(std::string_view words);

  HWND Window() const { return process_["main"]; }
  gui::Control Control() const { return {Window(), "the accessible fixture"}; }
  gui::ChildProcess& Process() { return process_.Process(); }
  bool IsRunning() const { return process_.IsRunning(); }

  // What was done to its objects so far: "ACTION@TICK;" each.
  std::string Actions() const;

 private:
  gui::FixtureProcess process_;
};

}  // namespace accessible
