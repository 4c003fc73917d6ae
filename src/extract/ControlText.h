// The text of a control, of the visible tool tip, and at a point of the screen. None of them
// raises or shows anything; what cannot be read is empty.
#pragma once

#include <windows.h>

#include <string>

namespace extract {

// The name of the window's own accessible object; when that is empty, the window's text.
std::wstring MyGetControlText(HWND hwnd);

// The visible tool-tip window; null when none is shown.
HWND GethWndTooltips();

// The text of that window; empty when there is none.
std::wstring GetTooltipText();

}  // namespace extract
