// The ways in which the program ends.
#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>

#include "driver/GuiTest.h"
#include "driver/Keys.h"
#include "driver/Program.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

// The tolerance for "at once", on a busy machine.
constexpr Milliseconds kAtOnce{1500};

class ClosingTest : public GuiTest {};

TEST_F(ClosingTest, IdleProgramSavesAndEndsAtOnce) {
  const Program program;
  program.Close();
  EXPECT_EQ(program.Process().WaitForExit(kAtOnce), 0U);
  EXPECT_EQ(program.ConfLines().size(), 39U);
}

TEST_F(ClosingTest, CloseDuringACaptureEndsAtOnceAndSavesNothing) {
  const Program program({.conf = "shiftx = 9\n"});
  program.StartCapture();
  program.Close();
  EXPECT_EQ(program.Process().WaitForExit(kAtOnce), 0U);
  EXPECT_EQ(program.ConfBytes(), "shiftx = 9\r\n");
}

TEST_F(ClosingTest, CloseDuringTheFirstCaptureLeavesNoFile) {
  const Program program;
  program.StartCapture();
  program.Close();
  EXPECT_EQ(program.Process().WaitForExit(kAtOnce), 0U);
  EXPECT_FALSE(std::filesystem::exists(program.ConfFile()));
}

TEST_F(ClosingTest, CloseAfterACaptureSaves) {
  const Program program;
  program.StartCapture();
  program.StopCapture();
  program.Close();
  EXPECT_EQ(program.Process().WaitForExit(kAtOnce), 0U);
  EXPECT_EQ(program.ConfLines().size(), 39U);
}

TEST_F(ClosingTest, AltF4Closes) {
  const Program program;
  program.TopPane().Click();
  ASSERT_TRUE(WaitFor("the program is in front", [&](std::string&) {
    return GetForegroundWindow() == program.Window().Handle();
  }));
  keys::Stroke({VK_MENU, VK_F4});
  EXPECT_EQ(program.Process().WaitForExit(), 0U);
  EXPECT_EQ(program.ConfLines().size(), 39U);
}

}  // namespace
}  // namespace gui
