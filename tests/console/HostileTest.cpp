// Every target that misbehaves, as the program for scripts reads it: it ends in its time, with an
// exit code that it documents, and what it writes is whole or nothing.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

#include "TextProgram.h"
#include "accessible/FixtureProcess.h"
#include "browser/BrowserProcess.h"
#include "cross/ListFixture.h"
#include "driver/GuiTest.h"

namespace console {
namespace {

using testing::AnyOf;
using testing::Not;
using testing::StartsWith;

constexpr std::chrono::seconds kTimeout{3};
constexpr char kOptions[] = " --json --timeout 3";

// Read, empty, vanished, or no answer in time.
void ExpectAWholeAnswer(const std::string& arguments) {
  const auto start = std::chrono::steady_clock::now();
  const Ran ran = RunText(arguments + kOptions);
  EXPECT_LT(std::chrono::steady_clock::now() - start, 2 * kTimeout);
  EXPECT_THAT(ran.code, AnyOf(0U, 1U, 3U, 5U));
  if (ran.code <= 1) {
    EXPECT_THAT(ran.output, StartsWith("{"));
    EXPECT_TRUE(ran.output.ends_with("}\r\n")) << ran.output.substr(0, 200);
    EXPECT_EQ(std::count(ran.output.begin(), ran.output.end(), '\n'), 1);
  } else if (ran.code == 3) {
    EXPECT_EQ(ran.output, "");
  }
}

class ControlsTest : public testing::TestWithParam<const char*> {};

// One way of reading after the other, and then all controls beside each other in one call.
TEST_P(ControlsTest, NoControlKeepsTheProgramLongerThanItsTime) {
  const std::string behave = "behave=" + std::string(GetParam());
  for (const std::string kind : {"listbox", "toolbar", "rows"}) {
    SCOPED_TRACE(kind);
    const cross::ListFixture fixture(cross::Bits::k32, behave + " " + kind + "=many:9");
    ExpectAWholeAnswer(OfWindow(fixture[kind]));
  }
  const cross::ListFixture fixture(
      cross::Bits::k32, behave +
                            " listbox=many:9 simplecombo=many:9 dropdown=many:9"
                            " dropdownlist=many:9 listview=many:9 ownerdata=many:9 toolbar=many:9"
                            " tabs=many:9 rows=many:9 ownerrows=many:9 tree=many:9 header=many:9"
                            " status=many:9 comboex=many:9");
  ExpectAWholeAnswer(OfWindow(GetAncestor(fixture["listbox"], GA_ROOT)) + " --tree");
}

INSTANTIATE_TEST_SUITE_P(Hostile, ControlsTest,
                         testing::Values("slow", "hang", "vanish", "die", "negative", "huge",
                                         "understate", "change"),
                         [](const auto& test) { return std::string(test.param); });

TEST(HostileTest, NoObjectKeepsTheProgramLongerThanItsTime) {
  for (const std::string scene :
       {"cycle", "endless", "claims", "huge", "codes", "roleless", "overflow"}) {
    SCOPED_TRACE(scene);
    const accessible::FixtureProcess fixture("place=40,40,400,300 " + scene);
    ExpectAWholeAnswer(OfWindow(fixture.Window()));
    ExpectAWholeAnswer("--at 70,70");
  }
  const accessible::FixtureProcess fixture("place=40,40,400,300 dies");
  EXPECT_EQ(RunText(OfWindow(fixture.Window()) + kOptions).code, 3U);
}

TEST(HostileTest, NoPageKeepsTheProgramLongerThanItsTime) {
  for (const std::string scene :
       {"hung", "silent", "zero", "junk", "second", "bare", "foreign", "refused", "circle",
        "selfframe", "deep=50", "chain=200", "orphan", "huge", "failing", "dies=innerText"}) {
    SCOPED_TRACE(scene);
    const html::BrowserProcess browser("place=40,40,400,300 " + scene);
    ExpectAWholeAnswer("--at 100,130");
  }
}

}  // namespace
}  // namespace console
