// The program right after its start.
#include <windows.h>

#include <tlhelp32.h>

#include <gtest/gtest.h>

#include <utility>

#include "SettingsText.h"
#include "driver/GuiTest.h"
#include "driver/Keys.h"
#include "driver/Owners.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Screen.h"
#include "driver/Windows.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

constexpr COLORREF kMarked = RGB(128, 128, 255);

class StartUpTest : public GuiTest {};

int ThreadCount(DWORD processId) {
  const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
  const OwnedHandle owned(snapshot);
  THREADENTRY32 entry = {};
  entry.dwSize = sizeof entry;
  int count = 0;
  for (BOOL more = Thread32First(snapshot, &entry); more; more = Thread32Next(snapshot, &entry)) {
    if (entry.th32OwnerProcessID == processId) ++count;
  }
  return count;
}

TEST_F(StartUpTest, CaptionHoldsNameAndVersion) {
  const Program program;
  EXPECT_EQ(program.Window().Text(), "Velmora列取得 " GUI_VERSION_TEXT);
}

TEST_F(StartUpTest, EverythingThatUsersReadIsShown) {
  const Program program;
  EXPECT_TRUE(program.TopPane().IsVisible());
  EXPECT_TRUE(program.BottomPane().IsVisible());
  for (const int id : {ui::cmdGo, ui::cmdSetting, ui::chkDetail, ui::chkAutoStop, ui::chkTurnBack,
                       ui::txtStatus, ui::lblMousePos, ui::txthWnd, ui::txtWin0, ui::txtWin1,
                       ui::txtWin2, ui::fr_Help, ui::Help_Url, ui::MyUrl}) {
    EXPECT_TRUE(program[id].IsVisible()) << "control " << id;
  }
  EXPECT_EQ(program[ui::cmdGo].Text(), "開始");
  EXPECT_EQ(program[ui::cmdSetting].Text(), "設定");
  EXPECT_EQ(program[ui::lblAutoStop].Text(), "");
  EXPECT_FALSE(program[ui::picSplitter].IsVisible());
  SaveScreenshotWhenPainted("start");
}

TEST_F(StartUpTest, NothingButTheMainWindowIsShown) {
  const Program program;
  EXPECT_EQ(VisibleWindows(program.Process().Id()), std::vector{program.Window().Handle()});
}

TEST_F(StartUpTest, FirstRunTakesItsPlaceFromTheScreen) {
  const Program program;
  const RECT at = program.Window().Rectangle();
  const LONG width = GetSystemMetrics(SM_CXSCREEN);
  const LONG height = GetSystemMetrics(SM_CYSCREEN);
  EXPECT_NEAR(at.left, width / 2, 1);
  EXPECT_NEAR(at.top, height / 3, 1);
  EXPECT_NEAR(at.right - at.left, width * 3 / 10, 1);
  EXPECT_NEAR(at.bottom - at.top, height * 5 / 12, 1);
}

TEST_F(StartUpTest, StoredPlaceIsTakenAsItStands) {
  const Program program({.conf = "form left = -150\nform top = 900\n"
                                 "form right = 333\nform bottom = 1444\n"});
  const RECT at = program.Window().Rectangle();
  EXPECT_EQ(at.left, -150);
  EXPECT_EQ(at.top, 900);
  EXPECT_EQ(at.right, 333);
  EXPECT_EQ(at.bottom, 1444);
}

// The program passes the stored place on unchanged. The system's call moves a window that would be
// entirely off the screen, on Windows as here.
TEST_F(StartUpTest, StoredPlaceOffTheScreenIsMovedOnToItByTheSystem) {
  const RECT screen = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
  for (const auto& [left, top] : {std::pair{3000, 2500}, std::pair{-900, -700}}) {
    Program program({.conf = "form left = " + std::to_string(left) + "\nform top = " +
                             std::to_string(top) + "\nform right = " + std::to_string(left + 500) +
                             "\nform bottom = " + std::to_string(top + 400) + "\n"});
    const RECT at = program.Window().Rectangle();
    EXPECT_TRUE(Overlap(at, screen)) << left;
    EXPECT_EQ(at.right - at.left, 500);
    EXPECT_EQ(at.bottom - at.top, 400);
    ASSERT_EQ(program.CloseAndWait(), 0U);
    EXPECT_EQ(ValueOf(program.ConfLines(), "form left"), std::to_string(at.left));
    EXPECT_EQ(ValueOf(program.ConfLines(), "form bottom"), std::to_string(at.bottom));
  }
}

TEST_F(StartUpTest, WorksOnOneThread) {
  const Program program;
  program.StartCapture();
  EXPECT_EQ(ThreadCount(program.Process().Id()), 1);
}

TEST_F(StartUpTest, CaptureStartsByItselfWhenAsked) {
  const Program program({.conf = "auto start = 1\n"});
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("停止"));
}

TEST_F(StartUpTest, NoCaptureStartsUnasked) {
  const Program program({.conf = "auto start = 0\n"});
  EXPECT_TRUE(program[ui::cmdGo].TextStays("開始", Milliseconds(700)));
}

TEST_F(StartUpTest, CommandLineSuppressesTheStart) {
  const Program program({.conf = "auto start = 1\n", .arguments = "no_start"});
  EXPECT_TRUE(program[ui::cmdGo].TextStays("開始", Milliseconds(700)));
}

TEST_F(StartUpTest, OnlyTheWholeCommandLineSuppressesTheStart) {
  for (const char* arguments : {"x no_start", "no_start x", "NO_START", "no_start2"}) {
    const Program program({.conf = "auto start = 1\n", .arguments = arguments});
    EXPECT_TRUE(program[ui::cmdGo].TextBecomes("停止")) << arguments;
  }
}

// A continued capture empties the status line in every pass, unless it runs in debug mode.
TEST_F(StartUpTest, FirstWordDebugLeavesTheStatusLineAlone) {
  for (const char* arguments : {"DEBUG x", "debug"}) {
    const Program program({.conf = "continue = 1\n", .arguments = arguments});
    program.StartCapture();
    EXPECT_TRUE(program[ui::lblStatus].TextStays("ESCで停止", Milliseconds(300))) << arguments;
  }
}

TEST_F(StartUpTest, DebugAsAnotherWordMeansNothing) {
  for (const char* arguments : {"x debug", "debugger", "debug2 x"}) {
    const Program program({.conf = "continue = 1\n", .arguments = arguments});
    program.StartCapture();
    EXPECT_TRUE(program[ui::lblStatus].TextBecomes("")) << arguments;
  }
}

TEST_F(StartUpTest, WindowStaysInFrontAsTheSettingSays) {
  for (const char* setting : {"1", "0"}) {
    const Program program({.conf = std::string("disp top = ") + setting + "\n"});
    EXPECT_TRUE(TextBecomes("the topmost mark", setting, [&] {
      const LONG style = GetWindowLongW(program.Window().Handle(), GWL_EXSTYLE);
      return (style & WS_EX_TOPMOST) != 0 ? "1" : "0";
    }));
  }
}

// The label has a text only once a capture has shown a position in it.
std::size_t MarkedPixelsOfPosition(const Program& program) {
  return Picture::Of(program[ui::lblMousePos].Rectangle()).Count(kMarked);
}

TEST_F(StartUpTest, ClientCoordinatesColourThePosition) {
  const Program program({.conf = "mous pos = client\nauto start = 1\n"});
  EXPECT_TRUE(WaitFor("the position is coloured",
                      [&](std::string&) { return MarkedPixelsOfPosition(program) > 0; }));
}

TEST_F(StartUpTest, HexadecimalHandlesColourThePositionToo) {
  const Program program({.conf = "win handle = hex\nauto start = 1\n"});
  EXPECT_TRUE(WaitFor("the position is coloured",
                      [&](std::string&) { return MarkedPixelsOfPosition(program) > 0; }));
  EXPECT_EQ(Picture::Of(program[ui::txthWnd].Rectangle()).Count(kMarked), 0U);
}

TEST_F(StartUpTest, OtherwiseThePositionIsNotColoured) {
  const Program program({.conf = "mous pos = Client\nauto start = 1\n"});
  ASSERT_TRUE(WaitFor("a position is shown", [&](std::string& seen) {
    seen = program[ui::lblMousePos].Text();
    return seen.find('-') != std::string::npos;
  }));
  EXPECT_TRUE(Stays(
      "the position is not coloured",
      [&](std::string&) { return MarkedPixelsOfPosition(program) == 0; }, Milliseconds(300)));
}

TEST_F(StartUpTest, BoxesShowTheirSettings) {
  const Program program({.conf = "auto stop = 1\ndetail = 1\nturn back = 1\n"});
  EXPECT_TRUE(program[ui::chkAutoStop].IsChecked());
  EXPECT_TRUE(program[ui::chkDetail].IsChecked());
  EXPECT_TRUE(program[ui::chkTurnBack].IsChecked());
  EXPECT_TRUE(program[ui::txtWinTextT1].IsVisible());
  EXPECT_FALSE(program[ui::txtWinTextT0].IsVisible());
}

TEST_F(StartUpTest, TopPaneTakesItsStoredHeight) {
  const Program program({.conf = "top height = 1725\n"});
  EXPECT_EQ(program.TopPane().Size().cy, 1725 / 15);
}

}  // namespace
}  // namespace gui
