// The text of the status bar that belongs to a window.
#pragma once

#include <string>

#include "report/WindowInformation.h"

namespace report {

// The text of the one status bar under the window's top-level window; when there is not exactly
// one, of the one under the foreground window; when there is not exactly one there either, of the
// one under its tab window with the window's title. A pop-up menu has no parent window, so its
// search starts at the foreground window. Empty when there is none.
std::wstring FindStatusText(const WindowFacts& window);

}  // namespace report
