// The programs that are read: an installer made by another tool, and those that come with Wine.
#pragma once

#include <windows.h>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "ListFixture.h"
#include "driver/ChildProcess.h"

namespace corpus {

struct ProgramCase {
  std::string name;       // of the test: letters and digits
  std::string file;       // under the system's drive; empty: the installer
  std::string arguments;  // the installer's page
  std::string windowClass;
  int windows;     // how many of its windows hold a text, at least
  int characters;  // how many these have together, at least
  cross::Bits bits;
};

void PrintTo(const ProgramCase& program, std::ostream* out);

// Those that the system under the tests runs: each for 32 bits, and for 64 bits where it can.
std::vector<ProgramCase> ProgramsOfThisSystem();

// The terms that the installer shows.
std::wstring Licence();

class RunningProgram {
 public:
  // Waits until its windows hold at least the texts of the case.
  explicit RunningProgram(const ProgramCase& program);

  // Its visible windows: the top-level ones, each followed by those inside.
  std::vector<HWND> Windows() const;

 private:
  std::unique_ptr<gui::ChildProcess> process_;
};

}  // namespace corpus
