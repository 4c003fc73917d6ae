#include "driver/FixtureProcess.h"

#include <stdexcept>

#include "driver/Text.h"

namespace gui {
namespace {

std::string WithParent(std::string_view words) {
  return "parent=" + std::to_string(GetCurrentProcessId()) + " " + std::string(words);
}

}  // namespace

FixtureProcess::FixtureProcess(const std::filesystem::path& program, std::string_view words)
    : process_(program, WithParent(words), program.parent_path(), ChildProcess::Output::kRead) {
  Require(WaitFor(
      "the fixture is ready",
      [&](std::string& seen) {
        seen = process_.ReadOutput();
        return seen.ends_with("ready\n") || !process_.IsRunning();
      },
      Milliseconds(60000)));
  for (const std::string& line : Split(process_.ReadOutput(), "\n")) {
    const std::size_t sign = line.find('=');
    if (sign == std::string::npos) continue;
    const UINT_PTR handle = std::stoul(line.substr(sign + 1));
    windows_[line.substr(0, sign)] = reinterpret_cast<HWND>(handle);
  }
  if (windows_.empty()) throw std::runtime_error("the fixture refused its command line");
}

}  // namespace gui
