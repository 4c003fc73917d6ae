#include "settings/ConfigFile.h"

#include <string>

#include "platform/DiskFile.h"
#include "platform/TextCodec.h"
#include "settings/ConfigText.h"

namespace settings {
namespace {

void ApplyToWindow(const WindowValues& values, ConfigWindow& window, Settings& record) {
  window.ApplyPlacement(values);
  if (record.mousPos == L"client") window.HighlightMousePos();
  // The position label, not the handle box. Odd, and stays: docs/ODDITIES.md.
  if (record.winHandle == L"hex") window.HighlightMousePos();
  record.turnBack = window.SetTurnBackBox(values.turnBack);
  window.SetDetailBox(record.detail);
  window.SetAutoStopBox(record.autoStop);
  window.SetVisibleTopPaneHeight(record.topHeight);
}

}  // namespace

std::wstring ConfigPath(const std::wstring& folder) { return folder + L"\\Conf.txt"; }

void LoadConfig(const std::wstring& path, ConfigWindow& window, Settings& record) {
  window.HoldLayout(true);
  ConfigValues values{record, {}};
  SetDefaults(window.Screen(), values);
  ParseConfig(platform::FromAnsi(platform::ReadWholeFile(path)), values);
  record = values.record;
  ApplyToWindow(values.window, window, record);
  window.HoldLayout(false);
  window.RunLayout();
}

void WriteConfig(const ByteSink& sink, const ConfigValues& values) {
  for (const std::wstring& line : ConfigLines(values)) {
    if (!sink(platform::ToAnsi(line))) return;
  }
}

void SaveConfig(const std::wstring& path, const ConfigWindow& window, const Settings& record) {
  const WindowValues values = window.CurrentValues();
  platform::NewFile file(path);
  WriteConfig([&file](std::string_view bytes) { return file.Write(bytes); }, {record, values});
}

}  // namespace settings
