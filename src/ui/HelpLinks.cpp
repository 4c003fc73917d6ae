#include "ui/HelpLinks.h"

#include <string_view>

#include "BuildOptions.h"

namespace ui {
namespace {

// All other ASCII characters have a meaning in an address or end an argument of the explorer's
// command line. Folders may be called "C# 100%".
bool StandsForItself(wchar_t c) {
  constexpr std::wstring_view kSigns = L"-._~/:!$&'()+@";
  const bool isLetter = (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z');
  const bool isDigit = c >= L'0' && c <= L'9';
  return c > 0x7F || isLetter || isDigit || kSigns.find(c) != kSigns.npos;
}

std::wstring FileAddress(std::wstring_view path) {
  constexpr std::wstring_view kDigits = L"0123456789ABCDEF";
  // A path on another computer already begins with two slashes.
  std::wstring address = path.starts_with(L"\\\\") ? L"file:" : L"file:///";
  for (const wchar_t c : path) {
    if (c == L'\\') {
      address += L'/';
    } else if (StandsForItself(c)) {
      address += c;
    } else {
      address += {L'%', kDigits[c >> 4U], kDigits[c & 0xFU]};
    }
  }
  return address;
}

std::wstring OwnPage(const std::wstring& programFolder) {
  return FileAddress(programFolder + L"\\help\\index.html");
}

}  // namespace

std::wstring HelpAddress(const std::wstring& programFolder) {
  constexpr std::wstring_view kConfigured = VELMORA_HELP_URL;
  return kConfigured.empty() ? OwnPage(programFolder) : std::wstring(kConfigured);
}

std::wstring HomeAddress(const std::wstring& programFolder) {
  constexpr std::wstring_view kConfigured = VELMORA_HOME_URL;
  return kConfigured.empty() ? OwnPage(programFolder) + L"#about" : std::wstring(kConfigured);
}

}  // namespace ui
