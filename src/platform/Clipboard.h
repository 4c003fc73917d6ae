// The clipboard, as far as this program uses it.
#pragma once

#include <windows.h>

#include <string>

namespace platform {

// Clears the clipboard and puts text on it as plain text, owned by owner. Returns false, leaving
// the clipboard as it was, when another program keeps it open for longer than 100 ms or when there
// is no memory for the text.
bool PutTextOnClipboard(HWND owner, const std::wstring& text);

}  // namespace platform
