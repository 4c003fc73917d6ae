// The ways of reading that follow when the first gave no text, in a process of either kind.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <iterator>
#include <string>
#include <tuple>

#include "ListFixture.h"
#include "Reading.h"
#include "bed/Needs.h"
#include "driver/Holdings.h"
#include "driver/Text.h"
#include "report/ControlReading.h"

namespace cross {
namespace {

using testing::StartsWith;

constexpr const char* kKinds[] = {"rows", "ownerrows", "tree", "header", "status", "comboex"};

class SecondWaysTest : public testing::TestWithParam<std::tuple<Bits, const char*>> {
 protected:
  void SetUp() override { NEEDS(SystemFor(TargetBits())); }
  static Bits TargetBits() { return std::get<0>(GetParam()); }
  static std::string Kind() { return std::get<1>(GetParam()); }

  static Reading ReadFixture(
      const std::string& words, const std::string& set,
      const std::function<bool(int)>& stays = [](int) { return true; }) {
    const ListFixture fixture(TargetBits(), words + Kind() + "=" + set);
    return Read(Kind(), fixture[Kind()], {.stays = stays});
  }
};

TEST_P(SecondWaysTest, AllTextsArriveWhole) {
  for (const std::string set : {"japanese", "empty", "odd", "wide", "long", "many:200"}) {
    // A status bar shows line ends and the like as blanks, and a data source has limits of its own.
    if (Kind() == "status" && set == "odd") continue;
    if (Kind() == "ownerrows" && set == "long") continue;
    SCOPED_TRACE(set);
    const Reading reading = ReadFixture("", set);
    EXPECT_EQ(gui::ToUtf8(reading.text),
              gui::ToUtf8(ExpectedText(Kind(), Contents(gui::ToWide(set)))));
    EXPECT_EQ(reading.method, Label(Kind()));
  }
}

TEST_P(SecondWaysTest, TextsOfAnyLengthArrive) {
  if (Kind() == "ownerrows" || Kind() == "status") return;
  EXPECT_TRUE(ReadFixture("", "longer").text == ExpectedText(Kind(), Contents(L"longer")));
}

TEST_P(SecondWaysTest, ReadingEndsWhenThePointerLeaves) {
  const Reading reading = ReadFixture("", "many:200", [](int yields) { return yields < 70; });
  EXPECT_EQ(reading.yields, 70);
  constexpr std::wstring_view kMark = L"・・・中断・・・";
  ASSERT_TRUE(reading.text.ends_with(kMark));
  const std::wstring read = reading.text.substr(0, reading.text.size() - kMark.size());
  EXPECT_TRUE(ExpectedText(Kind(), Contents(L"many:200")).starts_with(read));
  EXPECT_EQ(std::ranges::count(read, L'\n'), 70);
}

TEST_P(SecondWaysTest, ASlowOrHangingControlIsWaitedFor) {
  for (const char* const way : {"behave=slow ", "behave=hang "}) {
    EXPECT_EQ(ReadFixture(way, "many:12").text, ExpectedText(Kind(), Contents(L"many:12"))) << way;
  }
}

TEST_P(SecondWaysTest, OfAControlThatIsGoneThereIsWhatWasRead) {
  for (const char* const way : {"behave=vanish ", "behave=die "}) {
    const Reading reading = ReadFixture(way, "many:50");
    const std::wstring whole = ExpectedText(Kind(), Contents(L"many:50"));
    EXPECT_EQ(reading.text, whole.substr(0, reading.text.size())) << way;
    EXPECT_LE(std::ranges::count(reading.text, L'\n'), 2) << way;
    EXPECT_EQ(reading.method, L"") << way;
  }
}

TEST_P(SecondWaysTest, CountsThatLieDoNoHarm) {
  const Reading none = ReadFixture("behave=negative ", "many:5");
  EXPECT_EQ(none.text.empty(), Kind() != "tree");
  const Reading huge =
      ReadFixture("behave=huge ", "many:5", [](int yields) { return yields < 50; });
  EXPECT_THAT(huge.text, StartsWith(Kind() == "rows" || Kind() == "ownerrows"
                                        ? L"項目 0-0\t項目 0-1\t項目 0-2\t"
                                        : L"項目 0\r\n"));
  EXPECT_LE(huge.yields, 50);
  EXPECT_THAT(ReadFixture("behave=change ", "many:5").text, StartsWith(L"項目 0"));
}

INSTANTIATE_TEST_SUITE_P(Controls, SecondWaysTest,
                         testing::Combine(testing::Values(Bits::k32, Bits::k64),
                                          testing::ValuesIn(kKinds)),
                         [](const auto& test) {
                           return std::string(std::get<1>(test.param)) +
                                  (std::get<0>(test.param) == Bits::k64 ? "64" : "32");
                         });

// The combo box in it, and the extended one around, as a report reads them.
class ComboBoxExTest : public testing::TestWithParam<Bits> {
 protected:
  static std::wstring Report(HWND hwnd) {
    settings::Settings settings;
    settings.parentChildrenMax = 10;
    const platform::ReadSession session{hwnd, [](const std::wstring&) {}, [] {},
                                        [] { return true; }};
    wchar_t className[100] = {};
    GetClassNameW(hwnd, className, 100);
    return report::ReadControl(report::Category::ComboBox, {hwnd, className, {}, session}, settings)
        .text;
  }
};

TEST_P(ComboBoxExTest, GivesItsTextsInAReport) {
  NEEDS(SystemFor(GetParam()));
  const ListFixture fixture(GetParam(), "comboex=japanese");
  const std::string expected = gui::ToUtf8(ExpectedText("comboex", Contents(L"japanese")));
  EXPECT_EQ(gui::ToUtf8(Report(fixture["comboex"])), expected);
  const HWND inner = FindWindowExW(fixture["comboex"], nullptr, L"ComboBox", nullptr);
  ASSERT_NE(inner, nullptr);
  EXPECT_EQ(gui::ToUtf8(Report(inner)), expected);
}

INSTANTIATE_TEST_SUITE_P(SecondWaysTest, ComboBoxExTest, testing::Values(Bits::k32, Bits::k64),
                         [](const auto& test) {
                           return test.param == Bits::k64 ? "comboex64" : "comboex32";
                         });

// What is left behind after 500 readings, here and in the target.
TEST(SecondWaysEnduranceTest, FiveHundredReadingsLeaveNothingBehind) {
  NEEDS(bed::CountersOfWine());
  std::string words;
  for (const char* const kind : kKinds) words += std::string(kind) + "=wide ";
  ListFixture fixture(Bits::k32, words);
  const auto readAll = [&] {
    for (const char* const kind : kKinds) {
      EXPECT_FALSE(Read(kind, fixture[kind]).text.empty()) << kind;
    }
  };
  for (int i = 0; i < 5; ++i) readAll();
  const gui::Holdings own = gui::OwnHoldings();
  const gui::Holdings target = gui::HoldingsOf(fixture.Process().Handle());
  int readings = 0;
  for (; readings < 500; readings += static_cast<int>(std::size(kKinds))) readAll();
  const gui::Holdings ownNow = gui::OwnHoldings();
  const gui::Holdings targetNow = gui::HoldingsOf(fixture.Process().Handle());
  std::printf("here | before: %s | after: %s\n", own.Text().c_str(), ownNow.Text().c_str());
  std::printf("target | before: %s | after: %s\n", target.Text().c_str(), targetNow.Text().c_str());
  EXPECT_TRUE(IsWithin(own, ownNow, {.megabytes = 1}));
  EXPECT_TRUE(IsWithin(target, targetNow, {.megabytes = 1}));
}

}  // namespace
}  // namespace cross
