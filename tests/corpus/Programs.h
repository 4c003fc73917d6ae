// The programs that are read: an installer made by another tool, and those that come with Wine.
#pragma once

#include <windows.h>

#include <filesystem>
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

  // The pages of its tabs: one more than the number of the last; 1 when it has no tabs.
  int Pages() const;
  // Waits until that page is selected.
  void ShowPage(int page) const;

  // Its folder for temporary files, which belongs to the running test.
  const std::filesystem::path& Folder() const { return folder_; }

 private:
  HWND Tabs() const;

  std::filesystem::path folder_;
  std::unique_ptr<gui::ChildProcess> process_;
};

}  // namespace corpus
