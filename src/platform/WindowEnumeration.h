// Enumeration of windows. An exception of the visitor ends the enumeration and is rethrown after
// it, because it must not pass through system code.
#pragma once

#include <windows.h>

#include <functional>

namespace platform {

using WindowVisitor = std::function<void(HWND)>;

// Every top-level window, in the order of EnumWindows.
void ForEachWindow(const WindowVisitor& visit);

// Every descendant of root, in the order of EnumChildWindows; none when there is no such window.
void ForEachWindow(HWND root, const WindowVisitor& visit);

}  // namespace platform
