// A process that a test starts and that always ends with the test.
#pragma once

#include <windows.h>

#include <filesystem>
#include <optional>
#include <string>

#include "driver/Owners.h"
#include "driver/WaitFor.h"

namespace gui {

// All children belong to one job object of the test process: when that process ends, for whatever
// reason, the system ends them too. Destruction ends the process by force.
class ChildProcess {
 public:
  enum class Output { kIgnored, kRead, kReadErrors };

  // Throws std::runtime_error when the process cannot be started.
  ChildProcess(const std::filesystem::path& program, std::string_view arguments,
               const std::filesystem::path& folder, Output output = Output::kIgnored);
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  DWORD Id() const { return id_; }
  HANDLE Handle() const { return process_.get(); }
  bool IsRunning() const;

  // The exit code, or nothing when the process still runs at the deadline.
  std::optional<DWORD> WaitForExit(Milliseconds deadline = kPatience) const;

  // What the process has written so far: to its standard output with Output::kRead, to its standard
  // error with kReadErrors.
  const std::string& ReadOutput();

  // Ends the process at once, with exit code 99.
  void Kill();

 private:
  OwnedHandle process_;
  OwnedHandle output_;
  DWORD id_ = 0;
  std::string read_;
};

}  // namespace gui
