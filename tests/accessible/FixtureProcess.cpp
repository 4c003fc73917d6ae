#include "FixtureProcess.h"

#include <filesystem>
#include <stdexcept>

#include "driver/Text.h"
#include "driver/WaitFor.h"

namespace accessible {
namespace {

// The build system writes paths of the building machine, which Wine shows on drive Z.
std::filesystem::path FixtureFile() {
  std::string path = ACCESSIBLE_FIXTURE_FILE;
  if (path.starts_with('/')) path.insert(0, "Z:");
  return std::filesystem::path(path).make_preferred();
}

}  // namespace

FixtureProcess::FixtureProcess(std::string_view words)
    : process_(FixtureFile(), words, FixtureFile().parent_path(),
               gui::ChildProcess::Output::kRead) {
  gui::Require(gui::WaitFor(
      "the accessible fixture is ready",
      [&](std::string& seen) {
        seen = process_.ReadOutput();
        return seen.ends_with("\n") || !process_.IsRunning();
      },
      gui::Milliseconds(30000)));
  const std::string& line = process_.ReadOutput();
  if (!line.starts_with("main=")) throw std::runtime_error("the accessible fixture refused");
  window_ = reinterpret_cast<HWND>(static_cast<UINT_PTR>(std::stoul(line.substr(5))));
}

std::string FixtureProcess::Actions() const {
  wchar_t caption[1024] = {};
  GetWindowTextW(window_, caption, static_cast<int>(std::size(caption)));
  return gui::ToUtf8(caption);
}

}  // namespace accessible
