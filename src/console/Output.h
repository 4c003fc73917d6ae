// The standard streams of a console program: Unicode on a console, UTF-8 everywhere else.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace console {

enum class Stream : DWORD { kOutput = STD_OUTPUT_HANDLE, kError = STD_ERROR_HANDLE };

bool IsConsole(Stream stream);

// Writes all of it. False when the reader of a pipe has gone, or there is no such stream.
bool Write(Stream stream, std::string_view utf8);
bool Write(Stream stream, std::wstring_view text);

}  // namespace console
