#include "console/Output.h"

#include <algorithm>

#include "platform/Utf8.h"

namespace console {
namespace {

constexpr std::size_t kPiece = 1U << 13;  // older consoles refuse longer ones

HANDLE HandleOf(Stream stream) { return GetStdHandle(static_cast<DWORD>(stream)); }

}  // namespace

bool IsConsole(Stream stream) {
  DWORD mode = 0;
  return GetConsoleMode(HandleOf(stream), &mode) != FALSE;
}

bool Write(Stream stream, std::string_view utf8) {
  if (IsConsole(stream)) return Write(stream, platform::FromUtf8(utf8));
  while (!utf8.empty()) {
    DWORD written = 0;
    if (!WriteFile(HandleOf(stream), utf8.data(), static_cast<DWORD>(utf8.size()), &written,
                   nullptr) ||
        written == 0) {
      return false;
    }
    utf8.remove_prefix(written);
  }
  return true;
}

bool Write(Stream stream, std::wstring_view text) {
  if (!IsConsole(stream)) return Write(stream, platform::ToUtf8(text));
  while (!text.empty()) {
    DWORD written = 0;
    const auto piece = static_cast<DWORD>(std::min(text.size(), kPiece));
    if (!WriteConsoleW(HandleOf(stream), text.data(), piece, &written, nullptr) || written == 0) {
      return false;
    }
    text.remove_prefix(written);
  }
  return true;
}

}  // namespace console
