#include "ui/HelpLinks.h"

#include <algorithm>
#include <string_view>

#include "BuildOptions.h"

namespace ui {
namespace {

std::wstring OwnPage(const std::wstring& programFolder) {
  std::wstring address = L"file:///" + programFolder + L"/help/index.html";
  std::ranges::replace(address, L'\\', L'/');
  return address;
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
