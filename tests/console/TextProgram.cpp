#include "TextProgram.h"

#include <filesystem>
#include <optional>

#include "driver/Paths.h"
#include "driver/WaitFor.h"

namespace console {
namespace {

std::filesystem::path ProgramFile() { return gui::PackageFolder() / "VelmoraText.exe"; }

}  // namespace

Ran RunText(std::string_view arguments, gui::ChildProcess::Output output) {
  gui::ChildProcess process(ProgramFile(), arguments, ProgramFile().parent_path(), output);
  // A full pipe would stop the program, so it is read meanwhile.
  gui::Require(gui::WaitFor(
      "VelmoraText ends",
      [&](std::string& seen) {
        seen = process.ReadOutput().substr(0, 200);
        return !process.IsRunning();
      },
      gui::Milliseconds(30'000)));
  return {process.WaitForExit().value_or(99), process.ReadOutput()};
}

gui::ChildProcess StartText(std::string_view arguments) {
  return {ProgramFile(), arguments, ProgramFile().parent_path(), gui::ChildProcess::Output::kRead};
}

std::string OfWindow(HWND hwnd) {
  return "--window " + std::to_string(reinterpret_cast<INT_PTR>(hwnd));
}

}  // namespace console
