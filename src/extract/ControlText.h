// The text of a control, of its children, and of the visible tool tip. None of them raises or shows
// anything; what cannot be read is empty.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace extract {

// The name of the window's own accessible object; when that is empty, the window's text.
std::wstring MyGetControlText(HWND hwnd);

// The window's text by WM_GETTEXT; method then becomes "WM_GETTEXT" and stays as it was when there
// is none.
std::wstring MyGetEditItem(HWND hwnd, std::wstring& method);

// The window's own text directly followed by the texts of its children, in Z order, each with its
// CR LF; children without a text are left out, theirs are not visited. method becomes "Accessible".
std::wstring GetChildText(HWND hwnd, std::wstring& method);

// Lists the names of a window's accessible children.
using ChildrenListing = std::function<std::wstring(HWND)>;

// For windows of no known kind: the listing of the accessible children as it is, method then
// becoming "Accessible"; GetChildText only when that is empty.
std::wstring GetOther(HWND hwnd, const ChildrenListing& listing, std::wstring& method);

// The visible tool-tip window; null when none is shown.
HWND GethWndTooltips();

// The text of that window; empty when there is none.
std::wstring GetTooltipText();

}  // namespace extract
