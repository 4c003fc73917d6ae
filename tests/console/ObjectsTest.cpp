// Accessible objects and pages of other programs as JSON.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "TextProgram.h"
#include "accessible/FixtureProcess.h"
#include "browser/BrowserProcess.h"

namespace console {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST(ObjectsTest, TheObjectAtAPointHasItsMembersAncestorsAndChildren) {
  const accessible::FixtureProcess fixture("place=40,40,400,300 fruit");
  const Ran ran = RunText("--at 70,70 --json");
  EXPECT_EQ(ran.code, 0U);
  EXPECT_THAT(ran.output, HasSubstr(R"("point":{"x":70,"y":70})"));
  EXPECT_THAT(ran.output, HasSubstr(R"("object":{"name":")"));
  EXPECT_THAT(ran.output, HasSubstr("林檎"));
  EXPECT_THAT(ran.output, HasSubstr("果物の窓"));
}

TEST(ObjectsTest, ANamedWindowHasItsOwnObject) {
  const accessible::FixtureProcess fixture("place=40,40,400,300 objects=3");
  const Ran ran = RunText(OfWindow(fixture.Window()) + " --json");
  EXPECT_EQ(ran.code, 0U);
  EXPECT_THAT(ran.output, HasSubstr(R"("children":[{"name":"物1",)"));
  EXPECT_THAT(ran.output, HasSubstr(R"("rows":[["物1"],["物2"],["物3"]])"));
  EXPECT_THAT(ran.output, HasSubstr(R"("childrenComplete":true)"));
  const Ran first = RunText(OfWindow(fixture.Window()) + " --json --most 2");
  EXPECT_THAT(first.output, HasSubstr(R"("complete":false)"));
  EXPECT_THAT(first.output, HasSubstr(R"("childrenComplete":false)"));
  EXPECT_THAT(first.output, Not(HasSubstr("物3")));
}

TEST(ObjectsTest, APageHasItsAddressAndTheElementsAroundThePoint) {
  const html::BrowserProcess browser("place=40,40,400,300 fruit");
  const Ran ran = RunText("--at 100,130 --json");
  EXPECT_EQ(ran.code, 0U);
  EXPECT_THAT(ran.output, HasSubstr(R"("page":{"url":"http://kudamono.example/一覧.html")"));
  EXPECT_THAT(ran.output, HasSubstr(R"("chain":[{"tag":"HTML",)"));
  EXPECT_THAT(ran.output, HasSubstr(R"({"tag":"LI",)"));
  EXPECT_EQ(RunText("--at 100,130").output, "蜜柑\r\n");
}

}  // namespace
}  // namespace console
