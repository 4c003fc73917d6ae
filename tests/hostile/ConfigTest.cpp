// Malformed, random and malicious settings files.
#include <windows.h>

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "../unit/TemporaryFolder.h"
#include "Cases.h"
#include "platform/DiskFile.h"
#include "platform/NumberText.h"
#include "platform/TextCodec.h"
#include "settings/ConfigFile.h"
#include "settings/ConfigText.h"

namespace hostile {
namespace {

using settings::ConfigValues;

constexpr settings::ScreenTwips kScreen{19200, 15360, 15, 15};

// What the file means, computed a second time: the value of each known key, from the last line that
// has it.
std::map<std::wstring, std::wstring> Meaning(const std::wstring& text) {
  std::vector<std::wstring> lines(1);
  for (const wchar_t unit : text) {
    if (unit == L'\r' || unit == L'\n') {
      lines.emplace_back();
    } else {
      lines.back() += unit;
    }
  }
  const auto trimmed = [](std::wstring part) {
    while (!part.empty() && part.back() == L' ') part.pop_back();
    while (!part.empty() && part.front() == L' ') part.erase(0, 1);
    return part;
  };
  std::map<std::wstring, std::wstring> meaning;
  for (const std::wstring& line : lines) {
    if (std::count(line.begin(), line.end(), L'=') != 1) continue;
    const std::size_t sign = line.find(L'=');
    std::wstring key = trimmed(line.substr(0, sign));
    for (wchar_t& unit : key) {
      if (unit < 0x80) unit = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(unit)));
    }
    meaning[key] = trimmed(line.substr(sign + 1));
  }
  return meaning;
}

// The number that a value means, computed from its digits as one rounds on paper.
std::int32_t Number(const std::wstring& value) {
  std::size_t at = 0;
  while (at < value.size() && value[at] == L' ') ++at;
  bool negative = false;
  if (at < value.size() && (value[at] == L'-' || value[at] == L'+')) negative = value[at++] == L'-';
  const auto digits = [&] {
    std::string found;
    for (; at < value.size() && value[at] >= L'0' && value[at] <= L'9'; ++at) {
      found += static_cast<char>(value[at]);
    }
    return found;
  };
  std::string whole = digits();
  std::string fraction;
  if (at < value.size() && value[at] == L'.') {
    ++at;
    fraction = digits();
  }
  whole.erase(0, whole.find_first_not_of('0'));
  if (whole.size() > 10) return negative ? INT32_MIN : INT32_MAX;
  std::int64_t number = whole.empty() ? 0 : std::stoll(whole);
  fraction.erase(fraction.find_last_not_of('0') + 1);
  const bool isHalf = fraction == "5";
  if (isHalf ? number % 2 == 1 : fraction > "5") ++number;
  if (negative) number = -number;
  return static_cast<std::int32_t>(
      std::max<std::int64_t>(INT32_MIN, std::min<std::int64_t>(INT32_MAX, number)));
}

void ExpectMeaning(const ConfigValues& values, const std::wstring& text) {
  ConfigValues expected;
  settings::SetDefaults(kScreen, expected);
  const auto meaning = Meaning(text);
  for (const settings::ConfigKey& key : settings::ConfigKeys()) {
    std::wstring name(key.readAs);
    for (wchar_t& unit : name) unit = static_cast<wchar_t>(std::towlower(unit));
    const auto found = meaning.find(name);
    if (found == meaning.end()) continue;
    if (const auto* inText = std::get_if<std::wstring settings::Settings::*>(&key.field)) {
      expected.record.** inText = found->second;
    } else if (const auto* inRecord = std::get_if<std::int32_t settings::Settings::*>(&key.field)) {
      expected.record.** inRecord = Number(found->second);
    } else {
      expected.window.*std::get<std::int32_t settings::WindowValues::*>(key.field) =
          Number(found->second);
    }
  }
  EXPECT_EQ(values, expected);
}

std::string Written(const ConfigValues& values) {
  std::string file;
  settings::WriteConfig(
      [&file](std::string_view bytes) {
        file += bytes;
        return true;
      },
      values);
  return file;
}

std::string RealFile(Random& random) {
  ConfigValues values;
  settings::SetDefaults(kScreen, values);
  for (const settings::ConfigKey& key : settings::ConfigKeys()) {
    if (!random.Chance(30)) continue;
    if (const auto* number = std::get_if<std::int32_t settings::Settings::*>(&key.field)) {
      values.record.** number = random.Number();
    }
  }
  return Written(values);
}

// A value as no dialog would write it.
std::string ExtremeValue(Random& random) {
  constexpr const char* kValues[] = {"",
                                     "-",
                                     "+",
                                     ".",
                                     "-.5",
                                     ".5",
                                     "0.5",
                                     "1.5",
                                     "2.5",
                                     "12abc",
                                     "0x10",
                                     "1e9",
                                     "++1",
                                     "- 1",
                                     "99999999999999999999999999",
                                     "-99999999999999999999999999",
                                     "2147483647.5",
                                     "2147483648",
                                     "-2147483648.5",
                                     "-2147483649",
                                     "2147483646.5000000000000000000000000000000001",
                                     "0000000000000000000000007",
                                     "1,000",
                                     "１２",
                                     "\t7",
                                     "NaN",
                                     "client",
                                     "hex",
                                     "%s%s%n",
                                     "C:\\..\\..\\x"};
  if (random.Chance(70)) return random.OneOf(kValues);
  if (random.Chance(1)) return std::string(static_cast<std::size_t>(random.Below(60000)), '9');
  return random.Bytes(300);
}

std::string LinesOfExtremes(Random& random) {
  std::string file;
  for (const settings::ConfigKey& key : settings::ConfigKeys()) {
    if (random.Chance(10)) continue;
    std::string line = platform::ToAnsi(key.writtenAs);
    if (random.Chance(10))
      line = std::string(static_cast<std::size_t>(random.Below(9)), ' ') + line;
    if (random.Chance(5)) CharUpperBuffA(line.data(), static_cast<DWORD>(line.size()));
    file += line + ExtremeValue(random) +
            (random.Chance(80)   ? "\r\n"
             : random.Chance(50) ? "\n"
                                 : "\r");
  }
  return file;
}

std::string Mutated(std::string file, Random& random) {
  for (int i = 1 + random.Below(20); i > 0 && !file.empty(); --i) {
    const auto at = static_cast<std::size_t>(random.Below(static_cast<int>(file.size())));
    switch (random.Below(5)) {
      case 0:
        file[at] = static_cast<char>(random.Below(256));
        break;
      case 1:
        file.erase(at, static_cast<std::size_t>(random.Below(30)));
        break;
      case 2:
        file.insert(at, random.Bytes(20));
        break;
      case 3:
        file.insert(
            at,
            file.substr(static_cast<std::size_t>(random.Below(static_cast<int>(file.size()))), 60));
        break;
      default:
        file.insert(at, 1, "=\r\n \0\x81\xFF"[random.Below(7)]);
        break;
    }
  }
  return file;
}

std::string AnyFile(Random& random) {
  switch (random.Below(5)) {
    case 0:
      return random.Bytes(4000);
    case 1:
      return LinesOfExtremes(random);
    case 2:
      return Mutated(LinesOfExtremes(random), random);
    default:
      return Mutated(RealFile(random), random);
  }
}

ConfigValues Read(const std::string& file, std::wstring& text) {
  ConfigValues values;
  settings::SetDefaults(kScreen, values);
  text = platform::FromAnsi(file);
  settings::ParseConfig(text, values);
  return values;
}

TEST(HostileConfigTest, FilesMeanWhatTheirLinesSayAndAreWrittenSo) {
  ForEachCase(20000, [](Random& random) {
    std::wstring text;
    const ConfigValues values = Read(AnyFile(random), text);
    ExpectMeaning(values, text);

    const std::string written = Written(values);
    std::wstring again;
    EXPECT_EQ(Read(written, again), values);
    EXPECT_EQ(Written(Read(written, again)), written);
    EXPECT_EQ(std::count(written.begin(), written.end(), '\n'),
              values.record.readWhole == 0 ? 39 : 40);
  });
}

// A main window that accepts everything.
class PatientWindow : public settings::ConfigWindow {
 public:
  settings::ScreenTwips Screen() const override { return kScreen; }
  void HoldLayout(bool hold) override { held += hold ? 1 : -1; }
  void ApplyPlacement(const settings::WindowValues& values) override { window = values; }
  settings::WindowValues CurrentValues() const override { return window; }
  void HighlightMousePos() override {}
  std::int32_t SetTurnBackBox(std::int32_t value) override {
    return window.turnBack = value != 0 ? 1 : 0;
  }
  void SetDetailBox(std::int32_t /*value*/) override {}
  void SetAutoStopBox(std::int32_t /*value*/) override {}
  void SetVisibleTopPaneHeight(std::int32_t height) override { topPane = height; }
  void RunLayout() override { ++layouts; }

  settings::WindowValues window;
  std::int32_t topPane = 0;
  int held = 0;
  int layouts = 0;
};

TEST(HostileConfigTest, FilesOnTheDiskAreReadAndReplaced) {
  const TemporaryFolder folder;
  const std::wstring path = settings::ConfigPath(folder.Path().wstring());
  ForEachCase(1000, [&](Random& random) {
    const std::string file = AnyFile(random);
    EXPECT_TRUE(platform::NewFile(path).Write(file));
    std::wstring text;
    const ConfigValues expected = Read(file, text);

    PatientWindow window;
    settings::Settings record;
    settings::LoadConfig(path, window, record);
    EXPECT_EQ(window.held, 0);
    EXPECT_EQ(window.layouts, 1);
    EXPECT_EQ(window.topPane, expected.record.topHeight);
    EXPECT_EQ(record.turnBack, expected.window.turnBack != 0 ? 1 : 0);
    settings::Settings kept = expected.record;
    kept.turnBack = record.turnBack;
    EXPECT_EQ(record, kept);

    settings::SaveConfig(path, window, record);
    PatientWindow next;
    settings::Settings again;
    settings::LoadConfig(path, next, again);
    EXPECT_EQ(again, record);
    EXPECT_EQ(next.window, window.window);
  });
}

TEST(HostileConfigTest, NumbersAreClampedAndRoundedToEven) {
  ForEachCase(20000, [](Random& random) {
    std::wstring text;
    if (random.Chance(50)) {
      constexpr std::wstring_view kParts[] = {L"0",          L"5",     L"9",     L".", L"-",
                                              L"+",          L" ",     L"1",     L"x", L"4999",
                                              L"2147483647", L"00000", L"\u0660"};
      for (int i = random.Below(12); i > 0; --i) text += random.OneOf(kParts);
    } else {
      text = platform::FromAnsi(ExtremeValue(random));
    }
    EXPECT_EQ(platform::LeadingNumber(text), Number(text));
  });
}

}  // namespace
}  // namespace hostile
