// What lies at a point or under the pointer.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "TextProgram.h"
#include "driver/GuiTest.h"
#include "driver/Pointer.h"
#include "driver/Target.h"

namespace console {
namespace {

using gui::Fixture;
using testing::HasSubstr;

class PointerTest : public gui::GuiTest {};

std::string At(POINT point) {
  return "--at " + std::to_string(point.x) + "," + std::to_string(point.y);
}

TEST_F(PointerTest, TheWindowAtAPointIsRead) {
  const Fixture fixture("title=t static=名札 list=一覧");
  EXPECT_EQ(RunText(At(fixture["static"].Center())).output, "名札\r\n");
}

TEST_F(PointerTest, WithoutAPlaceItIsThePointers) {
  const Fixture fixture("title=t static=名札 edit=文");
  gui::pointer::MoveTo(fixture["edit"].Center());
  EXPECT_EQ(RunText("").output, "文\r\n");
  gui::pointer::MoveTo(fixture["static"].Center());
  EXPECT_EQ(RunText("--pointer --csv").output, "名札\r\n");
}

TEST_F(PointerTest, AfterSomeSecondsItIsReadWhereItIsThen) {
  const Fixture fixture("title=t static=名札 edit=文");
  gui::pointer::MoveTo(fixture["edit"].Center());
  gui::ChildProcess text = StartText("--after 2");
  gui::pointer::MoveTo(fixture["static"].Center());
  ASSERT_EQ(text.WaitForExit(), 0U);
  EXPECT_EQ(text.ReadOutput(), "名札\r\n");
}

TEST_F(PointerTest, TheTreeHoldsWhatIsInside) {
  const Fixture fixture("title=題 static=名札 edit=文");
  const std::string edit = fixture["edit"].HandleText();
  const Ran ran = RunText(OfWindow(fixture["main"].Handle()) + " --tree");
  EXPECT_THAT(ran.output, HasSubstr("[Edit " + edit + "]\r\n文\r\n"));
  EXPECT_THAT(ran.output, HasSubstr("]\r\n名札\r\n"));
}

TEST_F(PointerTest, WatchingWritesALineForEachRest) {
  const Fixture fixture("title=t static=名札 edit=文");
  gui::ChildProcess text = StartText("--watch");
  const auto lines = [&] { return std::ranges::count(text.ReadOutput(), '\n'); };
  for (const std::string kind : {"edit", "static", "edit"}) {
    const auto before = lines();
    gui::pointer::MoveTo(fixture[kind].Center());
    ASSERT_TRUE(gui::WaitFor("a line comes", [&](std::string& seen) {
      seen = text.ReadOutput();
      const std::size_t last = seen.rfind("{\"version\":1,");
      return lines() > before && last != seen.npos &&
             seen.find("\"handle\":" + fixture[kind].HandleText(), last) != seen.npos;
    }));
  }
  // A pointer that stays is not read again.
  const std::string whole = text.ReadOutput();
  EXPECT_TRUE(gui::TextStays(
      "the output", whole, [&] { return text.ReadOutput(); }, gui::Milliseconds(500)));
  EXPECT_TRUE(text.IsRunning());
}

}  // namespace
}  // namespace console
