// The processor time that another process has used.
#pragma once

#include <windows.h>

#include <filesystem>

namespace bench {

// Watches one running process. Under Wine, where GetProcessTimes knows the calling process only,
// the time comes from the host's process table, so the program file's path must be of no other
// running process.
class ProcessorTime {
 public:
  // Throws std::runtime_error when the process cannot be found.
  ProcessorTime(HANDLE process, const std::filesystem::path& program);

  // Milliseconds so far.
  double Now() const;

 private:
  HANDLE process_;
  std::filesystem::path hostEntry_;  // empty on Windows
};

}  // namespace bench
