#include "driver/Target.h"

#include <filesystem>
#include <stdexcept>

#include "driver/Paths.h"
#include "driver/Text.h"
#include "driver/Windows.h"
#include "fixture/Messages.h"

namespace gui {
namespace {

// 120 s: twice what a test may need, so that a fixture without a parent does not stay for long.
std::string FixtureWords(std::string_view words) {
  return "parent=" + std::to_string(GetCurrentProcessId()) + " deadline=120 " + std::string(words);
}

std::filesystem::path SystemProgram(std::string_view name) {
  wchar_t folder[MAX_PATH] = {};
  GetSystemDirectoryW(folder, MAX_PATH);
  const std::filesystem::path inSystem = std::filesystem::path(folder) / ToWide(name);
  if (std::filesystem::exists(inSystem)) return inSystem;
  GetWindowsDirectoryW(folder, MAX_PATH);
  return std::filesystem::path(folder) / ToWide(name);
}

}  // namespace

Fixture::Fixture(std::string_view words)
    : process_(FixtureFile(), FixtureWords(words), FixtureFile().parent_path(),
               ChildProcess::Output::kRead) {
  Require(WaitFor(
      "the fixture is ready",
      [&](std::string& seen) {
        seen = process_.ReadOutput();
        return seen.ends_with("ready\n") || !process_.IsRunning();
      },
      Milliseconds(30000)));
  for (const std::string& line : Split(process_.ReadOutput(), "\n")) {
    const std::size_t sign = line.find('=');
    if (sign == std::string::npos) continue;
    const UINT_PTR handle = std::stoul(line.substr(sign + 1));
    windows_[line.substr(0, sign)] = reinterpret_cast<HWND>(handle);
  }
  if (windows_.empty()) throw std::runtime_error("the fixture refused its command line");
}

Control Fixture::operator[](const std::string& kind) const {
  return {windows_.at(kind), "the fixture's " + kind};
}

void Fixture::Hang(Milliseconds time) const {
  PostMessageW(windows_.at("main"), fixture::kHang, static_cast<WPARAM>(time.count()), 0);
}

WineProgram::WineProgram(std::string_view program, std::string_view arguments,
                         std::string_view className)
    : process_(SystemProgram(program), arguments, SystemProgram(program).parent_path()),
      window_(WaitForWindow(process_, className)) {}

Control WineProgram::Inside(std::string_view className) const {
  HWND found = nullptr;
  Require(WaitFor("a " + std::string(className) + " shows", [&](std::string&) {
    found = FindInside(window_, className);
    return found != nullptr && IsWindowVisible(found);
  }));
  return {found, "the target's " + std::string(className)};
}

void WineProgram::MoveTo(int left, int top, int width, int height) const {
  const UINT keepSize = width == 0 ? SWP_NOSIZE : 0;
  SetWindowPos(window_, HWND_TOP, left, top, width, height, SWP_NOACTIVATE | keepSize);
}

}  // namespace gui
