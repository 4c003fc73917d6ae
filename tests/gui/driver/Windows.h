// Top-level windows of a process.
#pragma once

#include <windows.h>

#include <string_view>
#include <vector>

#include "driver/ChildProcess.h"

namespace gui {

// The process's visible top-level windows, topmost first.
std::vector<HWND> VisibleWindows(DWORD processId);

// Waits for a visible top-level window of that class and until it answers messages. An empty class
// name takes any class. Throws std::runtime_error at the deadline or when the process ends.
HWND WaitForWindow(const ChildProcess& process, std::string_view className);

// The first window inside `parent` of that class, visible or not; nullptr when there is none.
HWND FindInside(HWND parent, std::string_view className);

}  // namespace gui
