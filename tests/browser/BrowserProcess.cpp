#include "BrowserProcess.h"

#include "Messages.h"
#include "bed/Place.h"

namespace html {
BrowserProcess::BrowserProcess(std::string_view words)
    : process_(bed::Place("tests/browser/browser_fixture.exe"), words) {}

gui::Control BrowserProcess::operator[](const std::string& name) const {
  return {process_[name], "the browser fixture's " + name};
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
