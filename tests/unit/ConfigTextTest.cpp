#include "settings/ConfigText.h"

#include "platform/Trim.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace settings {
namespace {

// 1280 by 768 pixels at 96 dots per inch.
constexpr ScreenTwips kScreen{19200, 11520, 15, 15};

ConfigValues Defaults(const ScreenTwips& screen = kScreen) {
  ConfigValues values;
  SetDefaults(screen, values);
  return values;
}

ConfigValues Parsed(std::wstring_view text) {
  ConfigValues values = Defaults();
  ParseConfig(text, values);
  return values;
}

std::wstring Written(const ConfigValues& values) {
  std::wstring text;
  for (const std::wstring& line : ConfigLines(values)) text += line;
  return text;
}

TEST(TrimmedTest, TakesBlanksOnly) {
  using platform::Trimmed;
  EXPECT_EQ(Trimmed(L"  a b  "), L"a b");
  EXPECT_EQ(Trimmed(L"   "), L"");
  EXPECT_EQ(Trimmed(L""), L"");
  EXPECT_EQ(Trimmed(L"\ta\t"), L"\ta\t");
  EXPECT_EQ(Trimmed(L"　a　"), L"　a　");
}

TEST(ConfigDefaultsTest, OpensTheWindowInTheLowerRightOfTheScreen) {
  const ConfigValues values = Defaults();
  EXPECT_EQ(values.window, (WindowValues{640, 256, 1024, 576, 0}));
  EXPECT_EQ(values.record.topHeight, 1200);
  EXPECT_EQ(values.record.dispTop, 1);
}

TEST(ConfigDefaultsTest, CentresTheDialogRoundingHalvesToEven) {
  // (19200 - 4725) / 2 is 7237.5 and (11520 - 7725) / 2 is 1897.5.
  EXPECT_EQ(Defaults().record.settingLeft, 7238);
  EXPECT_EQ(Defaults().record.settingTop, 1898);
  // 1024 by 600 pixels: 5317.5 and 637.5.
  const ConfigValues small = Defaults({15360, 9000, 15, 15});
  EXPECT_EQ(small.record.settingLeft, 5318);
  EXPECT_EQ(small.record.settingTop, 638);
}

TEST(ConfigDefaultsTest, CountsPixelsAtEveryScale) {
  // 1920 by 1080 pixels at 144 dots per inch.
  const ConfigValues values = Defaults({19200, 10800, 10, 10});
  EXPECT_EQ(values.window, (WindowValues{960, 360, 1536, 810, 0}));
  // 1366 pixels: the right edge, 1092.8, is rounded.
  EXPECT_EQ(Defaults({1366 * 15, 768 * 15, 15, 15}).window.formRight, 1093);
}

TEST(ConfigDefaultsTest, LeavesFiveSettingsAsTheyWere) {
  ConfigValues values;
  values.record.startNode = 3;
  values.record.autoStart = 1;
  values.record.continueCapture = 1;
  values.record.fromHwnd = 1;
  values.record.actionTest = 2;
  values.record.hint = 9;
  values.record.hotkey = L"F7";
  SetDefaults(kScreen, values);
  EXPECT_EQ(values.record.startNode, 3);
  EXPECT_EQ(values.record.autoStart, 1);
  EXPECT_EQ(values.record.continueCapture, 1);
  EXPECT_EQ(values.record.fromHwnd, 1);
  EXPECT_EQ(values.record.actionTest, 2);
  EXPECT_EQ(values.record.hint, 0);
  EXPECT_EQ(values.record.hotkey, L"ESC");
}

TEST(ConfigLinesTest, WritesTheDefaultsAsUsersKnowThem) {
  // With every blank, because files are compared, and read by scripts.
  EXPECT_EQ(Written(Defaults()),
            L"form left = 640\r\n"
            L"form top = 256\r\n"
            L"form right = 1024\r\n"
            L"form bottom = 576\r\n"
            L"top height = 1200\r\n"
            L"disp Top = 1\r\n"
            L"treeview indent = 1\r\n"
            L"listview col = 0\r\n"
            L"to file = 0\r\n"
            L"turn back = 0\r\n"
            L"mous pos = screen\r\n"
            L"win handle = dec\r\n"
            L"hotkey = ESC\r\n"
            L"enable hot t = 1\r\n"
            L"disp text = 0\r\n"
            L"start node = 0\r\n"
            L"auto start= 0\r\n"
            L"clipboard= 0\r\n"
            L"hint = 0\r\n"
            L"auto stop = 0\r\n"
            L"auto stop time = 0\r\n"
            L"auto close = 0\r\n"
            L"chime = 1\r\n"
            L"chime file = chimes.wav\r\n"
            L"detail = 0\r\n"
            L"shift = 0\r\n"
            L"shiftx = 20\r\n"
            L"shifty = 30\r\n"
            L"continue = 0\r\n"
            L"parent & children = 1\r\n"
            L"parent & children max= 10\r\n"
            L"accname max = 50\r\n"
            L"from hwnd = 0\r\n"
            L"action test = 0\r\n"
            L"html tag text length = 50\r\n"
            L"accValue text = edit,DirectUIHWND\r\n"
            L"setting no = 0\r\n"
            L"setting left = 7238\r\n"
            L"setting top = 1898\r\n");
}

TEST(ConfigLinesTest, WritesNumbersPlain) {
  ConfigValues values = Defaults();
  values.window.formLeft = -1280;
  values.record.shiftx = -2147483647 - 1;
  values.record.accnameMax = 1234567;
  const std::wstring text = Written(values);
  EXPECT_TRUE(text.starts_with(L"form left = -1280\r\n"));
  EXPECT_NE(text.find(L"\r\nshiftx = -2147483648\r\n"), text.npos);
  EXPECT_NE(text.find(L"\r\naccname max = 1234567\r\n"), text.npos);
}

// Younger than the file: the file of a user who does not use it stays as it was.
TEST(ConfigLinesTest, ReadWholeIsTheLastLineAndOnlyWhenItIsNot0) {
  ConfigValues values = Defaults();
  EXPECT_EQ(ConfigLines(values).size(), 39U);
  for (const std::int32_t value : {1, 2, -1}) {
    values.record.readWhole = value;
    EXPECT_EQ(ConfigLines(values).back(), L"read whole = " + std::to_wstring(value) + L"\r\n");
    EXPECT_EQ(ConfigLines(values).size(), 40U);
    EXPECT_EQ(Parsed(Written(values)), values);
  }
  EXPECT_EQ(Parsed(L"read whole = 1\r\nread whole = 0\r\n").record.readWhole, 0);
}

// Every key gets a different value, so that two keys that share a field are noticed.
ConfigValues DistinctValues() {
  ConfigValues values;
  std::int32_t number = 101;
  for (const ConfigKey& key : ConfigKeys()) {
    if (const auto* const text = std::get_if<std::wstring Settings::*>(&key.field)) {
      values.record.** text = L"値 " + std::to_wstring(number++);
    } else if (const auto* const field = std::get_if<std::int32_t Settings::*>(&key.field)) {
      values.record.** field = number++;
    } else {
      values.window.*std::get<std::int32_t WindowValues::*>(key.field) = -number++;
    }
  }
  return values;
}

TEST(ConfigRoundTripTest, WhatIsWrittenIsRead) {
  const ConfigValues values = DistinctValues();
  EXPECT_EQ(Parsed(Written(values)), values);
  EXPECT_EQ(Parsed(Written(Defaults())), Defaults());
}

TEST(ConfigRoundTripTest, EveryKeyIsReadInAnyCaseAndSpacing) {
  const ConfigValues values = DistinctValues();
  std::wstring text = Written(values);
  for (wchar_t& unit : text) {
    if (unit >= L'a' && unit <= L'z') unit = static_cast<wchar_t>(unit - L'a' + L'A');
  }
  EXPECT_EQ(Parsed(text), values);
}

TEST(ConfigKeysTest, AreAllDifferent) {
  std::set<std::wstring_view> readAs;
  std::set<std::wstring_view> writtenAs;
  for (const ConfigKey& key : ConfigKeys()) {
    readAs.insert(key.readAs);
    writtenAs.insert(key.writtenAs);
  }
  EXPECT_EQ(ConfigKeys().size(), 40U);
  EXPECT_EQ(readAs.size(), 40U);
  EXPECT_EQ(writtenAs.size(), 40U);
}

TEST(ParseConfigTest, UnderstandsAnyCaseAndBlanks) {
  EXPECT_EQ(Parsed(L"Form Left=100").window.formLeft, 100);
  EXPECT_EQ(Parsed(L"   FORM LEFT   =   -7   ").window.formLeft, -7);
  EXPECT_EQ(Parsed(L"DISP TOP=0").record.dispTop, 0);
  EXPECT_EQ(Parsed(L"accvalue TEXT = Button , x").record.accValueText, L"Button , x");
  EXPECT_EQ(Parsed(L"AUTO START = 1").record.autoStart, 1);
}

TEST(ParseConfigTest, IgnoresLinesThatAreNoSetting) {
  for (const std::wstring_view text :
       {L"", L"hotkey", L"hotkey F5", L"hotkey = F5 = x", L"==", L"=F5", L"hot key = F5",
        L"hotkey : F5", L"# hotkey", L"hot  key=F5", L"\thotkey=F5", L"unknown = 1"}) {
    EXPECT_EQ(Parsed(text), Defaults()) << testing::PrintToString(text);
  }
}

TEST(ParseConfigTest, DropsAValueThatContainsTheEqualsSign) {
  ConfigValues values = Defaults();
  values.record.accValueText = L"a=b";
  EXPECT_EQ(Parsed(Written(values)).record.accValueText, L"edit,DirectUIHWND");
}

TEST(ParseConfigTest, LaterLineWins) {
  EXPECT_EQ(Parsed(L"hint = 1\r\nHINT=5\r\nhint =\r\n").record.hint, 0);
  EXPECT_EQ(Parsed(L"hotkey = F1\r\nhotkey = F2").record.hotkey, L"F2");
}

TEST(ParseConfigTest, TakesTextsAsTheyStand) {
  EXPECT_EQ(Parsed(L"hotkey =  Shift+F5  ").record.hotkey, L"Shift+F5");
  EXPECT_EQ(Parsed(L"hotkey =").record.hotkey, L"");
  EXPECT_EQ(Parsed(L"chime file = 鐘の音.wav").record.chimeFile, L"鐘の音.wav");
  // Only the exact word switches to client coordinates.
  EXPECT_EQ(Parsed(L"mous pos = Client").record.mousPos, L"Client");
}

TEST(ParseConfigTest, RoundsNumbersAndTakesOtherTextsForZero) {
  EXPECT_EQ(Parsed(L"auto stop time = 12.5").record.autoStopTime, 12);
  EXPECT_EQ(Parsed(L"auto stop time = 13.5").record.autoStopTime, 14);
  EXPECT_EQ(Parsed(L"shiftx = right").record.shiftx, 0);
  EXPECT_EQ(Parsed(L"shiftx =").record.shiftx, 0);
  EXPECT_EQ(Parsed(L"shiftx = 9999999999").record.shiftx, 2147483647);
}

TEST(ParseConfigTest, TakesEveryLineEnd) {
  for (const std::wstring_view text :
       {L"hint = 1\r\nclipboard = 2", L"hint = 1\nclipboard = 2\n", L"hint = 1\rclipboard = 2\r",
        L"\r\n\n\rhint = 1\n\n\r\nclipboard = 2"}) {
    EXPECT_EQ(Parsed(text).record.hint, 1) << testing::PrintToString(text);
    EXPECT_EQ(Parsed(text).record.clipboard, 2) << testing::PrintToString(text);
  }
}

TEST(ParseConfigTest, GivesTheMissingFiveZero) {
  const Settings record = Parsed(L"hint = 1").record;
  EXPECT_EQ(record.startNode, 0);
  EXPECT_EQ(record.autoStart, 0);
  EXPECT_EQ(record.continueCapture, 0);
  EXPECT_EQ(record.fromHwnd, 0);
  EXPECT_EQ(record.actionTest, 0);
}

}  // namespace
}  // namespace settings
