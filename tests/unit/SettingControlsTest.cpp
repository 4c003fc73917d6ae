// The settings dialog as data.
#include "ui/SettingControls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <vector>

#include "settings/ConfigKeys.h"
#include "settings/ConfigText.h"
#include "ui/ControlIds.h"

namespace ui {
namespace {

using testing::ElementsAre;

using S = settings::Settings;

std::vector<std::wstring> Items(int id) {
  const auto items = FindSettingControl(id)->items;
  return {items.begin(), items.end()};
}

TEST(SettingControlsTest, EveryNumberStandsOnceAndAfterItsParent) {
  std::set<int> seen{0};
  for (const SettingControl& control : SettingControls()) {
    EXPECT_TRUE(seen.contains(control.row.parent)) << control.row.id;
    EXPECT_TRUE(seen.insert(control.row.id).second) << control.row.id;
    EXPECT_EQ(FindSettingControl(control.row.id), &control);
  }
  EXPECT_EQ(FindSettingControl(cmdGo), nullptr);
}

TEST(SettingControlsTest, EverySettingHasOneControlOrOneGroupOfOptions) {
  std::vector<std::int32_t S::*> settings;
  std::map<int, std::vector<std::int32_t>> options;  // by group
  for (const SettingControl& control : SettingControls()) {
    EXPECT_EQ(control.setting == nullptr, control.holds == Holds::Nothing) << control.row.id;
    if (control.setting == nullptr) continue;
    if (control.holds == Holds::Option) {
      options[control.row.parent].push_back(control.number);
      if (control.number > 0) continue;
    }
    EXPECT_EQ(std::ranges::count(settings, control.setting), 0) << control.row.id;
    settings.push_back(control.setting);
  }
  EXPECT_EQ(settings.size(), 20U);
  EXPECT_THAT(options[frClipboard], ElementsAre(0, 1, 2, 3));
  EXPECT_THAT(options[frHint], ElementsAre(0, 1));
  EXPECT_THAT(options[frListview], ElementsAre(0, 1, 2));
  EXPECT_THAT(options[frAct], ElementsAre(0, 1, 2, 3));
}

TEST(SettingControlsTest, EverySettingIsKeptInTheFile) {
  for (const SettingControl& control : SettingControls()) {
    if (control.setting == nullptr) continue;
    const settings::ConfigField field = control.setting;
    EXPECT_EQ(std::ranges::count(settings::ConfigKeys(), field, &settings::ConfigKey::field), 1)
        << control.row.id;
  }
}

TEST(SettingControlsTest, ListsOfferTheirItemsInOrder) {
  EXPECT_THAT(Items(cmbAutoStop), ElementsAre(L"", L" 1", L" 2", L" 3", L" 4", L" 5", L" 7", L"10",
                                              L"15", L"20", L"30", L"40", L"50", L"60"));
  EXPECT_THAT(Items(cmbStLevel), ElementsAre(L"現在の階層", L"一つ上から", L"二つ上から",
                                             L"三つ上から", L"四つ上から"));
  EXPECT_THAT(Items(cmbAccNameMax),
              ElementsAre(L"  10", L"  20", L"  30", L"  50", L"  70", L" 100"));
  EXPECT_THAT(Items(cmbChildMaxCount),
              ElementsAre(L"   0", L"   5", L"  10", L"  50", L" 100", L" 500", L"1000", L"9999"));
}

TEST(SettingControlsTest, ItemsLookAsTheirValuesAreShown) {
  for (const SettingControl& control : SettingControls()) {
    if (control.holds != Holds::ListNumber) continue;
    for (const std::wstring item : control.items) {
      if (item.empty()) continue;
      EXPECT_EQ(RightAligned(settings::LeadingNumber(item), control.number), item);
    }
  }
}

TEST(RightAlignedTest, FillsUpWithBlanks) {
  EXPECT_EQ(RightAligned(5, 2), L" 5");
  EXPECT_EQ(RightAligned(10, 2), L"10");
  EXPECT_EQ(RightAligned(10, 4), L"  10");
  EXPECT_EQ(RightAligned(0, 4), L"   0");
  EXPECT_EQ(RightAligned(-7, 4), L"  -7");
}

TEST(RightAlignedTest, NeverCutsANumber) {
  EXPECT_EQ(RightAligned(123, 2), L"123");
  EXPECT_EQ(RightAligned(-2147483647 - 1, 4), L"-2147483648");
}

TEST(KeyFilterTest, DigitsAndBackspacePass) {
  for (const wchar_t digit : std::wstring(L"0123456789\b")) {
    EXPECT_TRUE(Accepts(Typing::Digits, digit));
    EXPECT_TRUE(Accepts(Typing::DigitsAndMinus, digit));
  }
  for (const wchar_t other : std::wstring(L"+., aA/:\r\t\x16０５９－")) {
    EXPECT_FALSE(Accepts(Typing::Digits, other));
    EXPECT_FALSE(Accepts(Typing::DigitsAndMinus, other));
  }
}

TEST(KeyFilterTest, MinusPassesOnlyWhereNumbersMayBeNegative) {
  EXPECT_FALSE(Accepts(Typing::Digits, L'-'));
  EXPECT_TRUE(Accepts(Typing::DigitsAndMinus, L'-'));
}

TEST(KeyFilterTest, AllOrNothing) {
  for (const wchar_t any : std::wstring(L"0-a\b ")) {
    EXPECT_FALSE(Accepts(Typing::Nothing, any));
    EXPECT_TRUE(Accepts(Typing::Anything, any));
  }
}

}  // namespace
}  // namespace ui
