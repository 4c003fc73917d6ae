// A program of the tests whose windows are targets, in its own process.
#pragma once

#include <windows.h>

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

#include "driver/ChildProcess.h"

namespace gui {

// Starts such a program, waits until it reports that its windows exist, and knows them by their
// names.
class FixtureProcess {
 public:
  // words: of its command line, "parent" aside. Throws std::runtime_error when the program does not
  // say that it is ready.
  FixtureProcess(const std::filesystem::path& program, std::string_view words);

  // Throws std::out_of_range for a name that the program did not report.
  HWND operator[](const std::string& name) const { return windows_.at(name); }
  bool IsRunning() const { return process_.IsRunning(); }
  ChildProcess& Process() { return process_; }
  const ChildProcess& Process() const { return process_; }

 private:
  ChildProcess process_;
  std::map<std::string, HWND> windows_;
};

}  // namespace gui
