#include "BrowserProcess.h"

#include <filesystem>
#include <stdexcept>

#include "Messages.h"
#include "driver/Text.h"
#include "driver/WaitFor.h"

namespace html {
namespace {

// The build system writes paths of the building machine, which Wine shows on drive Z.
std::filesystem::path FixtureFile() {
  std::string path = BROWSER_FIXTURE_FILE;
  if (path.starts_with('/')) path.insert(0, "Z:");
  return std::filesystem::path(path).make_preferred();
}

}  // namespace

BrowserProcess::BrowserProcess(std::string_view words)
    : process_(FixtureFile(), words, FixtureFile().parent_path(),
               gui::ChildProcess::Output::kRead) {
  gui::Require(gui::WaitFor(
      "the browser fixture is ready",
      [&](std::string& seen) {
        seen = process_.ReadOutput();
        return seen.ends_with("ready\n") || !process_.IsRunning();
      },
      gui::Milliseconds(30000)));
  for (const std::string& line : gui::Split(process_.ReadOutput(), "\n")) {
    const std::size_t sign = line.find('=');
    if (sign == std::string::npos) continue;
    windows_[line.substr(0, sign)] =
        reinterpret_cast<HWND>(static_cast<UINT_PTR>(std::stoul(line.substr(sign + 1))));
  }
  if (windows_.empty()) throw std::runtime_error("the browser fixture refused");
}

gui::Control BrowserProcess::operator[](const std::string& name) const {
  return {windows_.at(name), "the browser fixture's " + name};
}

int BrowserProcess::Ask(UINT message) const {
  DWORD_PTR answer = 0;
  const LRESULT answered =
      SendMessageTimeoutW(Window(), message, 0, 0, SMTO_ABORTIFHUNG, 2000, &answer);
  return answered == 0 ? -1 : static_cast<int>(answer);
}

int BrowserProcess::References() const { return Ask(kReferences); }
int BrowserProcess::Calls() const { return Ask(kCalls); }
int BrowserProcess::Requests() const { return Ask(kRequests); }

}  // namespace html
