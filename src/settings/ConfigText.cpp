#include "settings/ConfigText.h"

#include <algorithm>

#include "platform/LineEnd.h"
#include "platform/NumberText.h"
#include "platform/Rounding.h"
#include "platform/Trim.h"

namespace settings {
namespace {

using platform::Trimmed;

std::wstring LowerCase(std::wstring_view text) {
  std::wstring lower(text);
  // All keys are plain English.
  for (wchar_t& unit : lower) {
    if (unit >= L'A' && unit <= L'Z') unit = static_cast<wchar_t>(unit - L'A' + L'a');
  }
  return lower;
}

// Where the field keeps its number; null when it keeps a text.
template <typename Values>
auto* NumberOf(const ConfigField& field, Values& values) {
  if (const auto* const inRecord = std::get_if<std::int32_t Settings::*>(&field)) {
    return &(values.record.**inRecord);
  }
  const auto* const inWindow = std::get_if<std::int32_t WindowValues::*>(&field);
  return inWindow == nullptr ? nullptr : &(values.window.**inWindow);
}

void StoreText(const ConfigField& field, std::wstring_view text, ConfigValues& values) {
  if (std::int32_t* const number = NumberOf(field, values)) {
    *number = platform::LeadingNumber(text);
  } else {
    values.record.*std::get<std::wstring Settings::*>(field) = text;
  }
}

std::wstring TextOf(const ConfigField& field, const ConfigValues& values) {
  const std::int32_t* const number = NumberOf(field, values);
  return number == nullptr ? values.record.*std::get<std::wstring Settings::*>(field)
                           : std::to_wstring(*number);
}

void ParseLine(std::wstring_view line, ConfigValues& values) {
  const std::size_t equals = line.find(L'=');
  // A second "=" drops the line. Odd, and stays: docs/ODDITIES.md.
  if (equals == line.npos || line.find(L'=', equals + 1) != line.npos) return;
  const std::wstring key = LowerCase(Trimmed(line.substr(0, equals)));
  const auto keys = ConfigKeys();
  const auto row = std::ranges::find_if(
      keys, [&key](const ConfigKey& candidate) { return LowerCase(candidate.readAs) == key; });
  if (row != keys.end()) StoreText(row->field, Trimmed(line.substr(equals + 1)), values);
}

}  // namespace

void SetDefaults(const ScreenTwips& screen, ConfigValues& values) {
  for (const ConfigKey& key : ConfigKeys()) {
    if (const auto* const number = std::get_if<std::int32_t>(&key.byDefault)) {
      *NumberOf(key.field, values) = *number;
    } else if (const auto* const text = std::get_if<std::wstring_view>(&key.byDefault)) {
      StoreText(key.field, *text, values);
    } else if (const auto* const formula =
                   std::get_if<std::int32_t (*)(const ScreenTwips&)>(&key.byDefault)) {
      *NumberOf(key.field, values) = (*formula)(screen);
    }
  }
}

void ParseConfig(std::wstring_view text, ConfigValues& values) {
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of(L"\r\n"), text.size());
    ParseLine(text.substr(0, end), values);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
}

std::vector<std::wstring> ConfigLines(const ConfigValues& values) {
  std::vector<std::wstring> lines;
  for (const ConfigKey& key : ConfigKeys()) {
    const std::int32_t* const number = NumberOf(key.field, values);
    if (key.unlessZero && number != nullptr && *number == 0) continue;
    lines.push_back(std::wstring(key.writtenAs) + TextOf(key.field, values) +
                    std::wstring(platform::kCrLf));
  }
  return lines;
}

}  // namespace settings
