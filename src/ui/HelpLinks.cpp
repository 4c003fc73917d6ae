#include "ui/HelpLinks.h"

#include <string_view>

#include "BuildOptions.h"

namespace ui {
namespace {

std::wstring OwnPage(const std::filesystem::path& programFolder) {
  return L"file:///" + (programFolder / L"help" / L"index.html").generic_wstring();
}

}  // namespace

std::wstring HelpAddress(const std::filesystem::path& programFolder) {
  constexpr std::wstring_view kConfigured = VELMORA_HELP_URL;
  return kConfigured.empty() ? OwnPage(programFolder) : std::wstring(kConfigured);
}

std::wstring HomeAddress(const std::filesystem::path& programFolder) {
  constexpr std::wstring_view kConfigured = VELMORA_HOME_URL;
  return kConfigured.empty() ? OwnPage(programFolder) + L"#about" : std::wstring(kConfigured);
}

}  // namespace ui
