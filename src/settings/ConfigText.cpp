#include "settings/ConfigText.h"

#include <algorithm>

#include "platform/Rounding.h"
#include "platform/Trim.h"

namespace settings {
namespace {

using platform::Trimmed;

bool IsDigit(wchar_t unit) { return unit >= L'0' && unit <= L'9'; }

// Larger than every 32-bit number, small enough that one more digit cannot overflow 64 bits.
constexpr std::int64_t kTooLarge = std::int64_t{1} << 40;

std::wstring LowerCase(std::wstring_view text) {
  std::wstring lower(text);
  // All keys are plain English.
  for (wchar_t& unit : lower) {
    if (unit >= L'A' && unit <= L'Z') unit = static_cast<wchar_t>(unit - L'A' + L'a');
  }
  return lower;
}

void StoreText(const ConfigField& field, std::wstring_view text, ConfigValues& values) {
  if (const auto* const textField = std::get_if<std::wstring Settings::*>(&field)) {
    values.record.** textField = text;
  } else if (const auto* const number = std::get_if<std::int32_t Settings::*>(&field)) {
    values.record.** number = LeadingNumber(text);
  } else {
    values.window.*std::get<std::int32_t WindowValues::*>(field) = LeadingNumber(text);
  }
}

void StoreNumber(const ConfigField& field, std::int32_t number, ConfigValues& values) {
  if (const auto* const inRecord = std::get_if<std::int32_t Settings::*>(&field)) {
    values.record.** inRecord = number;
  } else {
    values.window.*std::get<std::int32_t WindowValues::*>(field) = number;
  }
}

std::wstring TextOf(const ConfigField& field, const ConfigValues& values) {
  if (const auto* const text = std::get_if<std::wstring Settings::*>(&field)) {
    return values.record.**text;
  }
  if (const auto* const number = std::get_if<std::int32_t Settings::*>(&field)) {
    return std::to_wstring(values.record.**number);
  }
  return std::to_wstring(values.window.*std::get<std::int32_t WindowValues::*>(field));
}

void ParseLine(std::wstring_view line, ConfigValues& values) {
  const std::size_t equals = line.find(L'=');
  if (equals == line.npos || line.find(L'=', equals + 1) != line.npos) return;
  const std::wstring key = LowerCase(Trimmed(line.substr(0, equals)));
  const auto keys = ConfigKeys();
  const auto row = std::ranges::find_if(
      keys, [&key](const ConfigKey& candidate) { return LowerCase(candidate.readAs) == key; });
  if (row != keys.end()) StoreText(row->field, Trimmed(line.substr(equals + 1)), values);
}

}  // namespace

std::int32_t LeadingNumber(std::wstring_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(L' '), text.size()));
  const bool negative = text.starts_with(L'-');
  if (negative || text.starts_with(L'+')) text.remove_prefix(1);

  std::int64_t whole = 0;
  for (; !text.empty() && IsDigit(text.front()); text.remove_prefix(1)) {
    whole = std::min(whole * 10 + (text.front() - L'0'), kTooLarge);
  }

  // For rounding it only matters whether the fraction is below, at or above one half.
  std::int64_t quarters = 0;
  if (text.starts_with(L'.')) {
    text.remove_prefix(1);
    const auto end = std::ranges::find_if_not(text, IsDigit);
    const std::wstring_view digits(text.begin(), end);
    if (!digits.empty()) {
      const bool restIsZero = digits.find_first_not_of(L'0', 1) == digits.npos;
      if (digits.front() > L'5' || (digits.front() == L'5' && !restIsZero)) {
        quarters = 3;
      } else if (digits.front() == L'5') {
        quarters = 2;
      }
    }
  }
  const std::int64_t total = whole * 4 + quarters;
  return platform::RoundedRatio(negative ? -total : total, 4);
}

void SetDefaults(const ScreenTwips& screen, ConfigValues& values) {
  for (const ConfigKey& key : ConfigKeys()) {
    if (const auto* const number = std::get_if<std::int32_t>(&key.byDefault)) {
      StoreNumber(key.field, *number, values);
    } else if (const auto* const text = std::get_if<std::wstring_view>(&key.byDefault)) {
      StoreText(key.field, *text, values);
    } else if (const auto* const formula =
                   std::get_if<std::int32_t (*)(const ScreenTwips&)>(&key.byDefault)) {
      StoreNumber(key.field, (*formula)(screen), values);
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
    lines.push_back(std::wstring(key.writtenAs) + TextOf(key.field, values) + L"\r\n");
  }
  return lines;
}

}  // namespace settings
