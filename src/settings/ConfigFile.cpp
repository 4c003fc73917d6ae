#include "settings/ConfigFile.h"

#include <fstream>
#include <iterator>
#include <string>

#include "platform/TextCodec.h"
#include "settings/ConfigText.h"

namespace settings {
namespace {

std::wstring ReadFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes(std::istreambuf_iterator<char>(file), {});
  return platform::FromAnsi(bytes);
}

void ApplyToWindow(const WindowValues& values, ConfigWindow& window, Settings& record) {
  window.ApplyPlacement(values);
  if (record.mousPos == L"client") window.HighlightMousePos();
  // Users know the coloured position label as the sign of the "hex" mode too.
  if (record.winHandle == L"hex") window.HighlightMousePos();
  record.turnBack = window.SetTurnBackBox(values.turnBack);
  record.detail = window.SetDetailBox(record.detail);
  record.autoStop = window.SetAutoStopBox(record.autoStop);
  window.SetVisibleTopPaneHeight(record.topHeight);
}

}  // namespace

std::filesystem::path ConfigPath(const std::filesystem::path& folder) {
  return folder / L"Conf.txt";
}

void LoadConfig(const std::filesystem::path& path, ConfigWindow& window, Settings& record) {
  window.HoldLayout(true);
  ConfigValues values{record, {}};
  SetDefaults(window.Screen(), values);
  ParseConfig(ReadFile(path), values);
  record = values.record;
  ApplyToWindow(values.window, window, record);
  window.HoldLayout(false);
  window.RunLayout();
}

void WriteConfig(std::ostream& out, const ConfigValues& values) {
  for (const std::wstring& line : ConfigLines(values)) {
    if (!(out << platform::ToAnsi(line)).flush()) return;
  }
}

void SaveConfig(const std::filesystem::path& path, const ConfigWindow& window,
                const Settings& record) {
  const WindowValues values = window.CurrentValues();
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  WriteConfig(file, {record, values});
}

}  // namespace settings
