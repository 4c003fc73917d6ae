#include "ListFixture.h"

#include <filesystem>
#include <stdexcept>

#include "driver/Text.h"
#include "driver/WaitFor.h"

namespace cross {
namespace {

// The build system writes paths of the building machine, which Wine shows on drive Z.
std::filesystem::path FileOf(Bits bits) {
  const std::string file = bits == Bits::k64 ? CROSS_FIXTURE64_FILE : CROSS_FIXTURE_FILE;
  return std::filesystem::path((file.starts_with('/') ? "Z:" : "") + file).make_preferred();
}

std::string WithParent(std::string_view words) {
  return "parent=" + std::to_string(GetCurrentProcessId()) + " " + std::string(words);
}

}  // namespace

bool SystemHas64Bits() {
  BOOL emulated = FALSE;
  return IsWow64Process(GetCurrentProcess(), &emulated) && emulated;
}

ListFixture::ListFixture(Bits bits, std::string_view words)
    : process_(FileOf(bits), WithParent(words), FileOf(bits).parent_path(),
               gui::ChildProcess::Output::kRead) {
  gui::Require(gui::WaitFor(
      "the fixture is ready",
      [&](std::string& seen) {
        seen = process_.ReadOutput();
        return seen.ends_with("ready\n") || !process_.IsRunning();
      },
      gui::Milliseconds(60000)));
  for (const std::string& line : gui::Split(process_.ReadOutput(), "\n")) {
    const std::size_t sign = line.find('=');
    if (sign == std::string::npos) continue;
    const UINT_PTR handle = std::stoul(line.substr(sign + 1));
    controls_[line.substr(0, sign)] = reinterpret_cast<HWND>(handle);
  }
  if (controls_.empty()) throw std::runtime_error("the fixture refused its command line");
}

}  // namespace cross
