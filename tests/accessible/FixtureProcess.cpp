#include "FixtureProcess.h"

#include "bed/Place.h"
#include "driver/Text.h"

namespace accessible {

FixtureProcess::FixtureProcess(std::string_view words)
    : process_(bed::Place("tests/accessible/accessible_fixture.exe"), words) {}

std::string FixtureProcess::Actions() const {
  wchar_t caption[1024] = {};
  GetWindowTextW(Window(), caption, static_cast<int>(std::size(caption)));
  return gui::ToUtf8(caption);
}

}  // namespace accessible
