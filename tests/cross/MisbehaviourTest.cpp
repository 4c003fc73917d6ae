// Controls that are slow, hang, answer wrongly, vanish or end their process.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>

#include "ListFixture.h"
#include "Reading.h"
#include "driver/Text.h"

namespace cross {
namespace {

using Clock = std::chrono::steady_clock;
using testing::AnyOf;
using testing::EndsWith;
using testing::StartsWith;

constexpr const char* kKinds[] = {"listbox",   "dropdown", "listview",
                                  "ownerdata", "toolbar",  "tabs"};

class MisbehaviourTest : public testing::TestWithParam<const char*> {
 protected:
  static std::string Kind() { return GetParam(); }
  static bool IsListView() { return Kind() == "listview" || Kind() == "ownerdata"; }

  // List views are read by their messages here, whatever the system.
  Reading ReadMisbehaving(
      const std::string& way, const std::string& set,
      const std::function<bool(int)>& stays = [](int) { return true; }) {
    const ListFixture fixture(Bits::k32, "behave=" + way + " " + Kind() + "=" + set);
    return Read(Kind(), fixture[Kind()], {.stays = stays, .as32BitSystem = true});
  }

  static std::wstring Whole(const std::wstring& set) { return ExpectedText(Kind(), Contents(set)); }

  // Of a list view that claims more than it has.
  static std::wstring FirstCells() { return ThroughBlock(L"項目 0-0\t項目 0-1\t項目 0-2\t", 256); }

  // What was collected before the third text was requested.
  static std::wstring BeforeTheThirdText() {
    if (IsListView()) return L"";
    // The texts of a toolbar's separators are requested too.
    return ExpectedText(Kind(), Contents(Kind() == "toolbar" ? L"many:1" : L"many:2"));
  }
};

TEST_P(MisbehaviourTest, ASlowControlIsReadWhole) {
  const Reading reading = ReadMisbehaving("slow", "many:12");
  EXPECT_EQ(reading.text, Whole(L"many:12"));
  EXPECT_EQ(reading.method, Label(Kind()));
}

TEST_P(MisbehaviourTest, AHangingControlIsWaitedFor) {
  const auto start = Clock::now();
  const Reading reading = ReadMisbehaving("hang", "many:4");
  EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(1400));
  EXPECT_EQ(reading.text, Whole(L"many:4"));
}

TEST_P(MisbehaviourTest, OfAVanishingControlThereIsWhatWasRead) {
  const Reading reading = ReadMisbehaving("vanish", "many:50");
  EXPECT_THAT(reading.text, StartsWith(BeforeTheThirdText()));
  EXPECT_LE(reading.text.size(), BeforeTheThirdText().size() + 40);
  EXPECT_EQ(reading.method, L"");
}

TEST_P(MisbehaviourTest, OfADyingProgramThereIsWhatWasRead) {
  const Reading reading = ReadMisbehaving("die", "many:50");
  EXPECT_THAT(reading.text, StartsWith(BeforeTheThirdText()));
  EXPECT_LE(reading.text.size(), BeforeTheThirdText().size() + 40);
  EXPECT_EQ(reading.method, L"");
}

TEST_P(MisbehaviourTest, NegativeNumbersAreAnEmptyControl) {
  const Reading reading = ReadMisbehaving("negative", "japanese");
  EXPECT_EQ(reading.text, L"");
  EXPECT_EQ(reading.yields, 0);
}

TEST_P(MisbehaviourTest, HugeNumbersAreNotBelieved) {
  const Reading reading = ReadMisbehaving("huge", "many:5", [](int yields) { return yields < 5; });
  if (IsListView()) {
    EXPECT_THAT(reading.text, StartsWith(FirstCells()));
    EXPECT_EQ(std::count(reading.text.begin(), reading.text.end(), L'\t'), 5 * 1023);
    EXPECT_TRUE(reading.text.ends_with(L"・・・中断・・・"));
    return;
  }
  // The system requests the lengths from lists itself and then has no memory for such texts.
  const std::wstring read = Kind() == "toolbar" ? Whole(L"many:3") : Whole(L"many:5");
  EXPECT_THAT(reading.text, AnyOf(StartsWith(read), StartsWith(L"\r\n\r\n\r\n\r\n\r\n")));
  EXPECT_EQ(reading.method, Label(Kind()));
}

TEST_P(MisbehaviourTest, AChangingCountGivesWhatThereIs) {
  const Reading reading = ReadMisbehaving("change", "many:5");
  if (IsListView()) {
    EXPECT_THAT(reading.text, StartsWith(FirstCells()));
    return;
  }
  EXPECT_THAT(reading.text, StartsWith(Whole(L"many:5")));
}

INSTANTIATE_TEST_SUITE_P(Controls, MisbehaviourTest, testing::ValuesIn(kKinds),
                         [](const auto& test) { return std::string(test.param); });

// Lists announce the length of a text.
class AnnouncedLengthTest : public MisbehaviourTest {};

TEST_P(AnnouncedLengthTest, ATextThatIsLongerThanAnnouncedArrivesWhole) {
  EXPECT_EQ(ReadMisbehaving("understate", "long").text, Whole(L"long"));
}

// How much of it arrives depends on how the system copies memory.
TEST_P(AnnouncedLengthTest, ATextThatIsFarLongerThanAnnouncedDamagesNothing) {
  std::wstring text = ReadMisbehaving("understate", "longer").text;
  ASSERT_THAT(text, StartsWith(L"first\r\n"));
  ASSERT_THAT(text, EndsWith(L"last\r\n"));
  text = text.substr(7, text.size() - 7 - 6);
  if (text.ends_with(L"\r\n")) text.resize(text.size() - 2);
  EXPECT_LE(text.size(), 200'000U);
  EXPECT_EQ(text.find_first_not_of(L'L'), text.npos);
}

INSTANTIATE_TEST_SUITE_P(Lists, AnnouncedLengthTest, testing::Values("listbox", "dropdown"),
                         [](const auto& test) { return std::string(test.param); });

}  // namespace
}  // namespace cross
