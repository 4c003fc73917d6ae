#include "driver/Target.h"

#include <filesystem>
#include <memory>
#include <stdexcept>

#include "bed/Needs.h"
#include "driver/Paths.h"
#include "driver/RealSystemFolder.h"
#include "driver/Text.h"
#include "driver/Windows.h"
#include "fixture/Messages.h"

namespace gui {
namespace {

std::unique_ptr<ChildProcess> StartSystemProgram(std::string_view name,
                                                 std::string_view arguments) {
  // Windows has programs of these names too: the user's.
  if (!bed::OnWine()) throw std::logic_error("the test does not say that it needs Wine's programs");
  wchar_t windows[MAX_PATH] = {};
  GetWindowsDirectoryW(windows, MAX_PATH);
  const std::filesystem::path root(windows);
  const RealSystemFolder seen;
  for (const std::filesystem::path& folder : {root, root / L"system32"}) {
    const std::filesystem::path program = folder / ToWide(name);
    if (!std::filesystem::exists(program)) continue;
    return std::make_unique<ChildProcess>(program, arguments, root);
  }
  throw std::runtime_error("no such program: " + std::string(name));
}

}  // namespace

Fixture::Fixture(std::string_view words) : process_(FixtureFile(), words) {}

Control Fixture::operator[](const std::string& kind) const {
  return {process_[kind], "the fixture's " + kind};
}

void Fixture::Hang(Milliseconds time) const {
  PostMessageW(process_["main"], fixture::kHang, static_cast<WPARAM>(time.count()), 0);
}

WineProgram::WineProgram(std::string_view program, std::string_view arguments,
                         std::string_view className)
    : process_(StartSystemProgram(program, arguments)),
      window_(WaitForWindow(*process_, className)) {}

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
