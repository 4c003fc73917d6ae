// The places of the main window's controls, at every size and resolution.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <map>

#include "LayoutCheck.h"
#include "SettingsText.h"
#include "bed/Needs.h"
#include "driver/GuiTest.h"
#include "driver/Program.h"
#include "driver/Resolution.h"
#include "driver/Screen.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

using testing::IsEmpty;

class LayoutTest : public GuiTest {
 protected:
  static testing::AssertionResult HeightBecomes(const Control& control, long height) {
    return TextBecomes("the height", std::to_string(height),
                       [&] { return std::to_string(control.Size().cy); });
  }
};

TEST_F(LayoutTest, WindowIsNeverLowerThanItsSmallestHeight) {
  const Program program;
  program.MoveWindowTo(50, 50, 400, 120);
  EXPECT_TRUE(HeightBecomes(program.Window(), 3150 / 15));
  EXPECT_EQ(program.Window().Size().cx, 400);
}

TEST_F(LayoutTest, RightPartsFollowTheWindowsWidth) {
  const Program program;
  for (const int width : {640, 420}) {
    program.MoveWindowTo(50, 50, width, 427);
    const LONG right = 50 + width - (50 + width - InnerArea(program.Window()).right);
    for (const int id : {ui::chkAutoStop, ui::chkTurnBack, ui::fr_Mous, ui::fr_Help}) {
      EXPECT_TRUE(TextBecomes("the right edge", std::to_string(right),
                              [&] { return std::to_string(program[id].Rectangle().right); }))
          << "control " << id << ", width " << width;
    }
    const RECT inner = InnerArea(program.Window());
    EXPECT_EQ(program.TopPane().Rectangle().left, inner.left + 2);
    EXPECT_EQ(program.TopPane().Rectangle().right, inner.right);
    EXPECT_EQ(program.BottomPane().Rectangle().right, inner.right);
    EXPECT_EQ(program[ui::fr_Help].Rectangle().bottom, inner.bottom - 5);
  }
}

// Parts that were not drawn, or not erased, are seen after everything is drawn again.
class DrawingTest : public LayoutTest {
 protected:
  static Picture Shown(const Program& program) {
    return PictureWhenPainted(InnerArea(program.Window()));
  }
  static bool IsDrawnWhole(const Program& program) {
    const Picture drawn = Shown(program);
    RedrawWindow(program.Window().Handle(), nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    return Shown(program) == drawn;
  }
};

TEST_F(DrawingTest, EverythingIsThereAtTheStart) {
  for (const int right : {400, 470, 520, 900}) {
    const Program program(
        {.conf = "form left = 50\nform top = 50\nform bottom = 700\nform right = " +
                 std::to_string(right) + "\n"});
    EXPECT_TRUE(IsDrawnWhole(program)) << right;
  }
}

TEST_F(DrawingTest, EverythingIsThereAtANewSize) {
  const Program program;
  for (const SIZE size : {SIZE{600, 800}, SIZE{420, 427}, SIZE{700, 300}, SIZE{384, 500}}) {
    program.MoveWindowTo(50, 50, size.cx, size.cy);
    EXPECT_TRUE(IsDrawnWhole(program)) << size.cx << " x " << size.cy;
  }
}

TEST_F(LayoutTest, UnmovedPartsKeepTheirPlace) {
  const Program program;
  using Place = std::array<LONG, 4>;  // within the window or frame: left, top, width, height
  const auto place = [&](int id) -> Place {
    const RECT at = program[id].Rectangle();
    const HWND parent = GetAncestor(program[id].Handle(), GA_PARENT);
    const RECT inner = InnerArea(Control(parent, "parent"));
    return {at.left - inner.left, at.top - inner.top, at.right - at.left, at.bottom - at.top};
  };
  std::map<int, Place> before;
  for (const int id :
       {ui::cmdGo, ui::cmdSetting, ui::lblAutoStop, ui::txtWin0, ui::lblMousePos, ui::txthWnd,
        ui::lblTextKind, ui::txtWin3, ui::txtWin1, ui::Help_Url, ui::MyUrl}) {
    before[id] = place(id);
  }
  const auto corner = [&](int id) { return std::array{place(id)[0], place(id)[1]}; };
  const auto status = corner(ui::lblStatus);
  const LONG messageLeft = place(ui::lblMsg)[0];
  program.MoveWindowTo(20, 20, 900, 800);
  ASSERT_TRUE(HeightBecomes(program.Window(), 800));
  for (const auto& [id, at] : before) EXPECT_EQ(place(id), at) << "control " << id;
  EXPECT_EQ(corner(ui::lblStatus), status);
  EXPECT_EQ(place(ui::lblMsg)[0], messageLeft);
}

TEST_F(LayoutTest, LostHeightOfTheTopPaneDoesNotComeBack) {
  Program program({.conf = "form left = 40\nform top = 40\nform right = 540\n"
                           "form bottom = 740\ntop height = 6000\n"});
  ASSERT_EQ(program.TopPane().Size().cy, 400);

  program.MoveWindowTo(40, 40, 500, 400);
  ASSERT_TRUE(HeightBecomes(program.Window(), 400));
  const RECT inner = InnerArea(program.Window());
  const LONG expected = inner.bottom - program.TopPane().Rectangle().top - 1500 / 15;
  EXPECT_TRUE(HeightBecomes(program.TopPane(), expected));

  program.MoveWindowTo(40, 40, 500, 700);
  ASSERT_TRUE(HeightBecomes(program.Window(), 700));
  EXPECT_EQ(program.TopPane().Size().cy, expected);
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "top height"), std::to_string(expected * 15));
}

TEST_F(LayoutTest, HeightThatFitsIsKeptWhenTheWindowShrinks) {
  const Program program({.conf = "form left = 40\nform top = 40\nform right = 540\n"
                                 "form bottom = 740\ntop height = 1500\n"});
  program.MoveWindowTo(40, 40, 500, 450);
  ASSERT_TRUE(HeightBecomes(program.Window(), 450));
  EXPECT_EQ(program.TopPane().Size().cy, 100);
}

TEST_F(LayoutTest, VeryNarrowWindowKeepsWorking) {
  const Program program;
  const SIZE before = program[ui::lblStatus].Size();
  program.MoveWindowTo(50, 50, 60, 427);
  ASSERT_TRUE(WaitFor("the window is narrow",
                      [&](std::string&) { return program.Window().Size().cx < 200; }));
  EXPECT_GT(program[ui::lblStatus].Size().cx, 0);
  // The steps that are still possible run: the foot is at its place.
  EXPECT_EQ(program[ui::fr_Help].Rectangle().bottom, InnerArea(program.Window()).bottom - 5);

  program.MoveWindowTo(50, 50, 384, 427);
  EXPECT_TRUE(TextBecomes("the status label's width", std::to_string(before.cx),
                          [&] { return std::to_string(program[ui::lblStatus].Size().cx); }));
}

// Whole twips per pixel, as in the program's layout.
LONG TwipsPerPixel(UINT dpi) { return 1440 / static_cast<LONG>(dpi); }

LONG PixelsRoundedUp(LONG twips, UINT dpi) {
  return (twips + TwipsPerPixel(dpi) - 1) / TwipsPerPixel(dpi);
}

// The window that a screen of the usual physical size gives at that resolution.
std::string ConfFor(UINT dpi, int height96) {
  const auto scaled = [&](int pixels) { return pixels * static_cast<int>(dpi) / 96; };
  return "form left = 100\nform top = 20\nform right = " + std::to_string(100 + scaled(384)) +
         "\nform bottom = " + std::to_string(20 + scaled(height96)) + "\n";
}

class ResolutionTest : public GuiTest, public testing::WithParamInterface<UINT> {};

TEST_P(ResolutionTest, DefaultSizeShowsEverything) {
  NEEDS(bed::ResolutionAtOnce());
  const Resolution resolution(GetParam());
  const Program program({.conf = ConfFor(GetParam(), 427)});
  EXPECT_THAT(Overlaps(program.Window()), IsEmpty());
  EXPECT_THAT(Protruding(program.Window()), IsEmpty());
  EXPECT_THAT(ClippedTexts(program.Window(), GetParam()), IsEmpty());
  SaveScreenshotWhenPainted("default-" + std::to_string(GetParam()));
}

TEST_P(ResolutionTest, SmallestSizeShowsEverything) {
  NEEDS(bed::ResolutionAtOnce());
  const Resolution resolution(GetParam());
  const Program program({.conf = ConfFor(GetParam(), 100) + "top height = 300\n"});
  EXPECT_EQ(program.Window().Size().cy, PixelsRoundedUp(3150, GetParam()));
  EXPECT_THAT(Overlaps(program.Window()), IsEmpty());
  EXPECT_THAT(Protruding(program.Window()), IsEmpty());
  EXPECT_THAT(ClippedTexts(program.Window(), GetParam()), IsEmpty());
  SaveScreenshotWhenPainted("smallest-" + std::to_string(GetParam()));
}

TEST_P(ResolutionTest, StoredSizesSurvive) {
  NEEDS(bed::ResolutionAtOnce());
  const Resolution resolution(GetParam());
  const LONG height = 130 * TwipsPerPixel(GetParam());
  Program program(
      {.conf = ConfFor(GetParam(), 427) + "top height = " + std::to_string(height) + "\n"});
  EXPECT_EQ(program.TopPane().Size().cy, 130);
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "top height"), std::to_string(height));
  EXPECT_EQ(ValueOf(program.ConfLines(), "form left"), "100");
}

TEST_P(ResolutionTest, ControlsGrowWithTheResolution) {
  NEEDS(bed::ResolutionAtOnce());
  const SIZE normal = Program()[ui::cmdGo].Size();
  const Resolution resolution(GetParam());
  const SIZE size = Program()[ui::cmdGo].Size();
  const auto expected = [](LONG pixels) { return pixels * 15 / TwipsPerPixel(GetParam()); };
  EXPECT_NEAR(size.cx, expected(normal.cx), 1);
  EXPECT_NEAR(size.cy, expected(normal.cy), 1);
}

INSTANTIATE_TEST_SUITE_P(Dpi, ResolutionTest, testing::Values(96U, 120U, 144U, 192U),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace gui
