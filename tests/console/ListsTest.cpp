// Every kind of control in a program of either kind, as the program for scripts writes it.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "TextProgram.h"
#include "bed/Needs.h"
#include "cross/ListFixture.h"
#include "cross/Reading.h"
#include "driver/Text.h"

namespace console {
namespace {

using cross::Bits;

class ListsTest : public testing::TestWithParam<std::tuple<Bits, const char*>> {
 protected:
  void SetUp() override { NEEDS(cross::SystemFor(TargetBits())); }

  static Bits TargetBits() { return std::get<0>(GetParam()); }
  static std::string Kind() { return std::get<1>(GetParam()); }

  // What a reading in this process gives.
  static std::string Expected(const std::string& set) {
    return gui::ToUtf8(cross::ExpectedText(Kind(), cross::Contents(gui::ToWide(set))));
  }
};

TEST_P(ListsTest, TheRowsAreWhatTheControlHolds) {
  for (const std::string set : {"japanese", "odd", "wide", "many:200"}) {
    // A status bar stores blanks in place of line ends.
    if (Kind() == "status" && set == "odd") continue;
    SCOPED_TRACE(set);
    const cross::ListFixture fixture(TargetBits(), Kind() + "=" + set);
    const Ran ran = RunText(OfWindow(fixture[Kind()]));
    EXPECT_EQ(ran.code, 0U);
    EXPECT_EQ(ran.output, Expected(set));
  }
}

TEST_P(ListsTest, NoMoreRowsThanWanted) {
  const cross::ListFixture fixture(TargetBits(), Kind() + "=many:200");
  const Ran ran = RunText(OfWindow(fixture[Kind()]) + " --most 7");
  EXPECT_EQ(ran.code, 0U);
  const std::string whole = Expected("many:200");
  std::size_t end = 0;
  for (int row = 0; row < 7; ++row) end = whole.find("\r\n", end) + 2;
  EXPECT_EQ(ran.output, whole.substr(0, end));
}

std::string NameOf(const testing::TestParamInfo<ListsTest::ParamType>& test) {
  return std::string(std::get<1>(test.param)) +
         (std::get<0>(test.param) == Bits::k64 ? "64" : "32");
}

INSTANTIATE_TEST_SUITE_P(Controls, ListsTest,
                         testing::Combine(testing::Values(Bits::k32, Bits::k64),
                                          testing::Values("listbox", "simplecombo", "dropdown",
                                                          "dropdownlist", "toolbar", "tabs", "rows",
                                                          "ownerrows", "tree", "header", "status",
                                                          "comboex")),
                         NameOf);

}  // namespace
}  // namespace console
