#include "driver/Windows.h"

#include <stdexcept>

#include "driver/Control.h"
#include "driver/Text.h"

namespace gui {
namespace {

struct Search {
  DWORD processId;
  std::vector<HWND> found;
};

BOOL CALLBACK AddWhenItMatches(HWND window, LPARAM parameter) {
  auto* search = reinterpret_cast<Search*>(parameter);
  DWORD owner = 0;
  GetWindowThreadProcessId(window, &owner);
  if (owner == search->processId && IsWindowVisible(window)) search->found.push_back(window);
  return TRUE;
}

std::string ClassOf(HWND window) { return Control(window, "").ClassName(); }

}  // namespace

std::vector<HWND> VisibleWindows(DWORD processId) {
  Search search{processId, {}};
  EnumWindows(AddWhenItMatches, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

HWND WaitForWindow(const ChildProcess& process, std::string_view className) {
  // A window may be visible while its program still prepares it.
  WaitForInputIdle(process.Handle(), static_cast<DWORD>(kPatience.count()));
  HWND found = nullptr;
  bool ended = false;
  const testing::AssertionResult shown = WaitFor(
      "a window of class \"" + std::string(className) + "\" answers",
      [&](std::string& seen) {
        if (!process.IsRunning()) {
          ended = true;
          return true;
        }
        for (HWND window : VisibleWindows(process.Id())) {
          const std::string name = ClassOf(window);
          seen += name + " ";
          if (!className.empty() && name != className) continue;
          DWORD_PTR answer = 0;
          if (SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, 500, &answer) == 0) {
            continue;
          }
          found = window;
          return true;
        }
        return false;
      },
      Milliseconds(30000));
  Require(shown);
  if (ended) {
    throw std::runtime_error("the program ended before it showed a window, exit code " +
                             std::to_string(process.WaitForExit().value_or(0)));
  }
  return found;
}

HWND FindInside(HWND parent, std::string_view className) {
  for (HWND window : Descendants(parent)) {
    if (ClassOf(window) == className) return window;
  }
  return nullptr;
}

}  // namespace gui
