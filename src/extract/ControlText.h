// The text of a control, of its children, and of the visible tool tip. Nothing here throws or shows
// a message; what cannot be read is empty.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "extract/ItemReading.h"
#include "extract/TextReading.h"

namespace extract {

// The name of the window's own accessible object; when that is empty, the window's text.
std::wstring MyGetControlText(HWND hwnd);

// The window's text by WM_GETTEXT: up to 4095 characters, or all of it when whole is set. The
// method is "WM_GETTEXT", and empty when there is no text.
TextReading ReadWindowText(HWND hwnd, bool whole);
Method MyGetEditItem(HWND hwnd, platform::ItemSink& sink, bool whole = false);

// The window's own text directly followed by the texts of its children, in Z order, each a row;
// children without a text are left out, and grandchildren are not visited. The method is
// "Accessible".
Method GetChildText(HWND hwnd, platform::ItemSink& sink);

// Lists the names of the window's accessible children.
using ChildrenListing = std::function<void(platform::ItemSink& sink)>;

// Reads a window in another way; the method is empty when that gives nothing.
using FurtherWay = std::function<Method(platform::ItemSink& sink)>;

// For windows of unknown kinds: the listing of the accessible children; when that holds no text,
// the further way, if there is one; and GetChildText only when nothing came. The method is
// "Accessible", or that of the further way.
Method GetOther(HWND hwnd, const ChildrenListing& listing, const FurtherWay& further,
                platform::ItemSink& sink);

// The visible tool-tip window; null when none is shown.
HWND GethWndTooltips();

// The text of that window; empty when there is none.
std::wstring GetTooltipText();

}  // namespace extract
