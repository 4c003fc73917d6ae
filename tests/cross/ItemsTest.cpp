// Every kind of control with every kind of text, in a process of either kind.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <tuple>

#include "ListFixture.h"
#include "Reading.h"
#include "accessible/FixtureProcess.h"
#include "bed/Needs.h"
#include "driver/Text.h"

namespace cross {
namespace {

class ItemsTest : public testing::TestWithParam<std::tuple<Bits, const char*>> {
 protected:
  void SetUp() override { NEEDS(SystemFor(TargetBits())); }

  static Bits TargetBits() { return std::get<0>(GetParam()); }
  static std::string Kind() { return std::get<1>(GetParam()); }
  static bool IsListView() { return Kind() == "listview" || Kind() == "ownerdata"; }

  // A list view read as on a 32-bit system, on any system.
  static Reading ReadByMessages(
      const ListFixture& fixture,
      const std::function<bool(int)>& stays = [](int) { return true; }) {
    return Read(Kind(), fixture[Kind()], {.stays = stays, .as32BitSystem = IsListView()});
  }

  // One row of the table in the test's output.
  static void Tell(const std::string& set, const Reading& reading) {
    std::printf("%s system | %s target | %-12s | %-10s | %-12s | %s\n",
                bed::Is64BitSystem() ? "64-bit" : "32-bit",
                TargetBits() == Bits::k64 ? "64-bit" : "32-bit", Kind().c_str(), set.c_str(),
                gui::ToUtf8(reading.method).c_str(), Shown(reading.text).c_str());
  }
};

TEST_P(ItemsTest, AllTextsArrive) {
  for (const std::string set : {"japanese", "empty", "odd", "wide", "long", "many:300"}) {
    // A toolbar writes a text of any length to the given address; this one is too long.
    if (Kind() == "toolbar" && set == "long") continue;
    SCOPED_TRACE(set);
    const Contents contents(gui::ToWide(set));
    const ListFixture fixture(TargetBits(), Kind() + "=" + set);
    const Reading reading = ReadByMessages(fixture);
    Tell(set, reading);
    EXPECT_EQ(gui::ToUtf8(reading.text), gui::ToUtf8(ExpectedText(Kind(), contents)));
    if (IsListView() && set == "empty") {
      EXPECT_EQ(reading.method, L"Accessible");
    } else {
      EXPECT_EQ(reading.method, Label(Kind()));
    }
  }
}

TEST_P(ItemsTest, ManyItemsShowTheirNumbersAndYieldOnceEach) {
  const ListFixture fixture(TargetBits(), Kind() + "=many:500");
  const Reading reading = ReadByMessages(fixture);
  EXPECT_EQ(reading.text, ExpectedText(Kind(), Contents(L"many:500")));
  const int items = Kind() == "toolbar" ? 1000 : 500;
  EXPECT_EQ(reading.yields, items);
  ASSERT_EQ(reading.progress.size(), static_cast<std::size_t>(items));
  const std::wstring all = std::to_wstring(items);
  const std::wstring last = Kind() == "tabs"                      ? L"500/ --500"
                            : Kind() == "toolbar" || IsListView() ? all + L"/" + all
                                                                  : L"499/499";
  EXPECT_EQ(reading.progress.back(), last);
}

TEST_P(ItemsTest, ReadingEndsWhenThePointerLeaves) {
  const ListFixture fixture(TargetBits(), Kind() + "=many:500");
  const Reading reading = ReadByMessages(fixture, [](int yields) { return yields < 100; });
  EXPECT_EQ(reading.yields, 100);
  const std::wstring whole = ExpectedText(Kind(), Contents(L"many:500"));
  constexpr std::wstring_view kMark = L"・・・中断・・・";
  ASSERT_TRUE(reading.text.ends_with(kMark));
  const std::wstring read = reading.text.substr(0, reading.text.size() - kMark.size());
  EXPECT_TRUE(read.ends_with(L"\r\n"));
  EXPECT_TRUE(whole.starts_with(read));
  EXPECT_EQ(reading.method, Label(Kind()));
}

std::string NameOf(const testing::TestParamInfo<ItemsTest::ParamType>& test) {
  return std::string(std::get<1>(test.param)) +
         (std::get<0>(test.param) == Bits::k64 ? "64" : "32");
}

INSTANTIATE_TEST_SUITE_P(Controls, ItemsTest,
                         testing::Combine(testing::Values(Bits::k32, Bits::k64),
                                          testing::Values("listbox", "simplecombo", "dropdown",
                                                          "dropdownlist", "toolbar", "tabs")),
                         NameOf);
INSTANTIATE_TEST_SUITE_P(ListViews, ItemsTest,
                         testing::Combine(testing::Values(Bits::k32),
                                          testing::Values("listview", "ownerdata")),
                         NameOf);

// List views of a 64-bit system are read through accessibility.
class AccessibleItemsTest : public ItemsTest {
 protected:
  void SetUp() override { NEEDS(bed::System64()); }
};

TEST_P(AccessibleItemsTest, NoMessageIsSentForThem) {
  NEEDS(bed::ObjectsOfWine());
  const ListFixture fixture(TargetBits(), Kind() + "=japanese");
  const Reading reading = Read(Kind(), fixture[Kind()]);
  Tell("japanese", reading);
  EXPECT_EQ(reading.text, ExpectedText(Kind(), Contents(L"")));
  EXPECT_EQ(reading.method, L"Accessible");
}

TEST(AccessibleItems64Test, TheItemsOfTheObjectAreListed) {
  NEEDS(bed::System64());
  const accessible::FixtureProcess fixture("place=40,40,300,200 rows=3");
  const Reading reading = Read("listview", fixture.Window());
  EXPECT_EQ(reading.text, L"行1\r\n行2\r\n行3\r\n");
  EXPECT_EQ(reading.method, L"Accessible");
}

INSTANTIATE_TEST_SUITE_P(System64, AccessibleItemsTest,
                         testing::Combine(testing::Values(Bits::k32, Bits::k64),
                                          testing::Values("listview", "ownerdata")),
                         NameOf);

}  // namespace
}  // namespace cross
