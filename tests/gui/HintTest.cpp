// Tool tips of other programs, shown in the status box.
#include <windows.h>

#include <gtest/gtest.h>

#include "driver/GuiTest.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Target.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

class HintTest : public GuiTest {};

TEST_F(HintTest, TipThatIsShownGoesIntoTheStatusBox) {
  const Fixture fixture("title=t static=名札 tip=別窓の説明です");
  const Program program({.conf = "hint = 1\n"});
  program.StartCapture();
  pointer::MoveTo(fixture["static"].Center());
  EXPECT_TRUE(program[ui::txtStatus].TextBecomes("別窓の説明です"));
}

TEST_F(HintTest, TipIsLeftAloneWhenNotAskedFor) {
  const Fixture fixture("title=t static=名札 tip=別窓の説明です");
  const Program program({.conf = "hint = 0\n"});
  program.StartCapture();
  pointer::MoveTo(fixture["static"].Center());
  EXPECT_TRUE(program[ui::txtStatus].TextStays("", Milliseconds(1200)));
}

}  // namespace
}  // namespace gui
