#include "driver/Text.h"

#include <windows.h>

namespace gui {
namespace {

std::wstring Decoded(UINT codePage, std::string_view text) {
  const int length = static_cast<int>(text.size());
  const int needed = MultiByteToWideChar(codePage, 0, text.data(), length, nullptr, 0);
  std::wstring result(static_cast<std::size_t>(needed), L'\0');
  MultiByteToWideChar(codePage, 0, text.data(), length, result.data(), needed);
  return result;
}

std::string Encoded(UINT codePage, std::wstring_view text) {
  const int length = static_cast<int>(text.size());
  const int needed =
      WideCharToMultiByte(codePage, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(codePage, 0, text.data(), length, result.data(), needed, nullptr, nullptr);
  return result;
}

}  // namespace

std::string ToUtf8(std::wstring_view text) { return Encoded(CP_UTF8, text); }

std::wstring ToWide(std::string_view utf8) { return Decoded(CP_UTF8, utf8); }

std::string ToCodePage(std::string_view utf8) { return Encoded(CP_ACP, ToWide(utf8)); }

std::string FromCodePage(std::string_view text) { return ToUtf8(Decoded(CP_ACP, text)); }

std::vector<std::string> Split(std::string_view text, std::string_view separator) {
  std::vector<std::string> pieces;
  while (!text.empty()) {
    const std::size_t end = text.find(separator);
    pieces.emplace_back(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + separator.size());
  }
  return pieces;
}

}  // namespace gui
