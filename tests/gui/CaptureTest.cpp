// A capture that follows the pointer over a program of known windows.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "SettingsText.h"
#include "driver/GuiTest.h"
#include "driver/Keys.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Target.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

constexpr char kFixtureWords[] =
    "title=的の窓 edit=入力された文 button=押しボタン static=名札 memo=一行目\\n二行目 leaf=葉っぱ "
    "blank";

class CaptureTest : public GuiTest {
 protected:
  static testing::AssertionResult Reports(const Program& program, const Control& target) {
    return program[ui::txthWnd].TextBecomes(target.HandleText());
  }
};

std::string Padded(long number, std::size_t width) {
  const std::string digits = std::to_string(number);
  return std::string(digits.size() < width ? width - digits.size() : 0, ' ') + digits;
}

std::string PositionText(POINT point) { return Padded(point.x, 4) + "-" + Padded(point.y, 3); }

TEST_F(CaptureTest, ButtonStartsAndStops) {
  const Program program;
  program[ui::cmdGo].Click();
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("停止"));
  program[ui::cmdGo].Click();
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("開始"));
}

TEST_F(CaptureTest, StatusShowsTheStopKeyOnlyDuringACapture) {
  const Program program({.conf = "hotkey = F8\n"});
  program.StartCapture();
  EXPECT_TRUE(program[ui::lblStatus].TextBecomes("F8で停止"));
  EXPECT_TRUE(program[ui::lblStatus].IsVisible());
  program.StopCapture();
  EXPECT_TRUE(WaitFor("the status is hidden",
                      [&](std::string&) { return !program[ui::lblStatus].IsVisible(); }));
}

TEST_F(CaptureTest, FocusGoesToTheTopPaneInUse) {
  for (const char* conf : {"turn back = 0\n", "turn back = 1\n"}) {
    const Program program({.conf = conf});
    program[ui::cmdGo].Click();
    EXPECT_TRUE(WaitFor("the top pane has the focus", [&](std::string&) {
      return program.TopPane().HasFocus();
    })) << conf;
  }
}

TEST_F(CaptureTest, ReportsWhatStandsUnderThePointer) {
  const Fixture fixture(kFixtureWords);
  const Program program;
  program.StartCapture();
  for (const char* kind : {"edit", "button", "static", "memo", "leaf"}) {
    const Control target = fixture[kind];
    pointer::MoveTo(target.Center());
    EXPECT_TRUE(Reports(program, target)) << kind;
    EXPECT_TRUE(program[ui::txtWin0].TextBecomes(target.ClassName())) << kind;
    EXPECT_TRUE(program.TopPane().TextBecomes(target.Text())) << kind;
    EXPECT_EQ(program[ui::lblMousePos].Text(), PositionText(target.Center())) << kind;
  }
}

TEST_F(CaptureTest, ReportsTheCaptionOfATopLevelWindow) {
  const Fixture fixture(kFixtureWords);
  const Program program;
  program.StartCapture();
  const RECT at = fixture["main"].Rectangle();
  pointer::MoveTo({at.left + 60, at.top + 12});
  EXPECT_TRUE(Reports(program, fixture["main"]));
  EXPECT_TRUE(program[ui::txtWin0].TextBecomes("FixtureMain"));
  EXPECT_TRUE(program.TopPane().TextBecomes("的の窓"));
}

TEST_F(CaptureTest, WindowWithoutATextGivesAnEmptyPane) {
  const Fixture fixture(kFixtureWords);
  const Program program;
  program.StartCapture();
  pointer::MoveTo(fixture["edit"].Center());
  ASSERT_TRUE(program.TopPane().TextBecomes("入力された文"));
  pointer::MoveTo(fixture["blank"].Center());
  EXPECT_TRUE(Reports(program, fixture["blank"]));
  EXPECT_TRUE(program.TopPane().TextBecomes(""));
}

// The system gives the window behind it.
TEST_F(CaptureTest, ADisabledControlIsRead) {
  const Fixture fixture("title=背景の窓 disabled=押せない");
  const Program program;
  program.StartCapture();
  pointer::MoveTo(fixture["disabled"].Center());
  EXPECT_TRUE(Reports(program, fixture["disabled"]));
  EXPECT_TRUE(program.TopPane().TextBecomes("押せない"));
}

TEST_F(CaptureTest, MessageLineSaysGoUntilTheFirstReport) {
  const Fixture fixture(kFixtureWords);
  const Program program;
  pointer::MoveTo(program.BottomPane().Center());
  program.StartCapture();
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes("Go"));
  EXPECT_TRUE(program[ui::lblMsg].TextStays("Go", Milliseconds(400)));
  pointer::MoveTo(fixture["edit"].Center());
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes(""));
}

TEST_F(CaptureTest, RestartOverAnUnmovedPointerReports) {
  const Fixture fixture(kFixtureWords);
  const Program program;
  pointer::MoveTo(fixture["edit"].Center());
  keys::Stroke({VK_ESCAPE});
  ASSERT_TRUE(program.TopPane().TextBecomes("入力された文"));
  keys::Stroke({VK_ESCAPE});
  ASSERT_TRUE(program[ui::cmdGo].TextBecomes("開始"));
  fixture["edit"].SetText("再開の後");
  keys::Stroke({VK_ESCAPE});
  EXPECT_TRUE(program.TopPane().TextBecomes("再開の後", Milliseconds(2000)));
}

TEST_F(CaptureTest, MessageLineIsClearedAfterAReport) {
  const Fixture fixture(kFixtureWords);
  const Program program;
  program.StartCapture();
  pointer::MoveTo(fixture["static"].Center());
  ASSERT_TRUE(program.TopPane().TextBecomes("名札"));
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes(""));
}

TEST_F(CaptureTest, RestingPointerIsReportedOnce) {
  const Fixture fixture(kFixtureWords);
  const Program program;
  program.StartCapture();
  pointer::MoveTo(fixture["edit"].Center());
  ASSERT_TRUE(program.TopPane().TextBecomes("入力された文"));
  ASSERT_TRUE(program[ui::lblMsg].TextBecomes(""));
  fixture["edit"].SetText("後から");
  EXPECT_TRUE(program.TopPane().TextStays("入力された文", Milliseconds(1500)));
  const POINT center = fixture["edit"].Center();
  pointer::MoveTo({center.x + 1, center.y});
  EXPECT_TRUE(program.TopPane().TextBecomes("後から"));
}

TEST_F(CaptureTest, RestingPointerIsReportedAgainEveryThirtySeconds) {
  const Fixture fixture(kFixtureWords);
  const Program program;
  program.StartCapture();
  pointer::MoveTo(fixture["edit"].Center());
  ASSERT_TRUE(program.TopPane().TextBecomes("入力された文"));
  for (const char* text : {"二回目", "三回目"}) {
    const std::string before = program.TopPane().Text();
    ASSERT_TRUE(program[ui::lblMsg].TextBecomes(""));
    fixture["edit"].SetText(text);
    EXPECT_TRUE(program.TopPane().TextStays(before, Milliseconds(29000)));
    EXPECT_TRUE(program.TopPane().TextBecomes(text, Milliseconds(2500)));
  }
}

TEST_F(CaptureTest, HandlesAreShownInHexadecimalWhenAsked) {
  const Fixture fixture(kFixtureWords);
  const Program program({.conf = "win handle = hex\n"});
  program.StartCapture();
  pointer::MoveTo(fixture["leaf"].Center());
  char expected[16] = {};
  std::snprintf(expected, sizeof expected, "%X",
                static_cast<unsigned>(reinterpret_cast<UINT_PTR>(fixture["leaf"].Handle())));
  EXPECT_TRUE(program[ui::txthWnd].TextBecomes(expected));
}

TEST_F(CaptureTest, ShiftMovesThePointThatIsReadNotThePositionShown) {
  const Fixture fixture(kFixtureWords);
  const Program program({.conf = "shift = 1\nshiftx = -7\nshifty = -90\n"});
  program.StartCapture();
  const POINT center = fixture["button"].Center();
  const POINT pointer = {center.x + 7, center.y + 90};
  pointer::MoveTo(pointer);
  EXPECT_TRUE(Reports(program, fixture["button"]));
  EXPECT_TRUE(program[ui::lblMousePos].TextBecomes(PositionText(pointer)));
}

TEST_F(CaptureTest, ShiftIsIgnoredWhenSwitchedOff) {
  const Fixture fixture(kFixtureWords);
  const Program program({.conf = "shift = 0\nshiftx = -7\nshifty = -90\n"});
  program.StartCapture();
  pointer::MoveTo(fixture["button"].Center());
  EXPECT_TRUE(Reports(program, fixture["button"]));
}

TEST_F(CaptureTest, ClientCoordinatesBelongToTheTargetsParent) {
  const Fixture fixture(kFixtureWords);
  const Program program({.conf = "mous pos = client\n"});
  program.StartCapture();

  POINT point = fixture["leaf"].Center();
  pointer::MoveTo(point);
  ScreenToClient(fixture["inner"].Handle(), &point);
  EXPECT_TRUE(program[ui::lblMousePos].TextBecomes(PositionText(point)));
}

TEST_F(CaptureTest, ClientCoordinatesOfAWindowWithoutParentAreScreenCoordinates) {
  const Fixture fixture(kFixtureWords);
  const Program program({.conf = "mous pos = client\n"});
  program.StartCapture();
  const RECT at = fixture["main"].Rectangle();
  const POINT point = {at.left + 70, at.top + 12};
  pointer::MoveTo(point);
  EXPECT_TRUE(program[ui::lblMousePos].TextBecomes(PositionText(point)));
}

TEST_F(CaptureTest, OwnWindowClearsTheBoxesAndReportsNothing) {
  const Fixture fixture(kFixtureWords);
  const Program program;
  program.StartCapture();
  pointer::MoveTo(fixture["edit"].Center());
  ASSERT_TRUE(program.TopPane().TextBecomes("入力された文"));
  const std::string pointText = program[ui::txtWin3].Text();

  pointer::MoveTo(program.BottomPane().Center());
  EXPECT_TRUE(program.TopPane().TextBecomes(""));
  for (const int id : {ui::txthWnd, ui::txtWin0, ui::txtWin1, ui::txtWin2, ui::txtCount}) {
    EXPECT_TRUE(program[id].TextBecomes("")) << "control " << id;
  }
  EXPECT_TRUE(program.BottomPane().TextBecomes(""));
  EXPECT_EQ(program[ui::txtWin3].Text(), pointText);
}

TEST_F(CaptureTest, OwnWindowsPartsInsideFramesAreOwnToo) {
  const Fixture fixture(kFixtureWords);
  const Program program;
  program.StartCapture();
  for (const int id : {ui::txthWnd, ui::txtWin1, ui::cmdGo}) {
    pointer::MoveTo(fixture["edit"].Center());
    ASSERT_TRUE(program.TopPane().TextBecomes("入力された文"));
    pointer::MoveTo(program[id].Center());
    EXPECT_TRUE(program[ui::txthWnd].TextBecomes("")) << "control " << id;
    EXPECT_TRUE(program[ui::txthWnd].TextStays("", Milliseconds(200))) << "control " << id;
  }
}

TEST_F(CaptureTest, DetailBoxBringsBackTheTextsClearedOverTheOwnWindow) {
  const Fixture fixture(kFixtureWords);
  const Program program;
  program.StartCapture();
  pointer::MoveTo(fixture["static"].Center());
  ASSERT_TRUE(program.TopPane().TextBecomes("名札"));
  pointer::MoveTo(program.BottomPane().Center());
  ASSERT_TRUE(program.TopPane().TextBecomes(""));
  program[ui::chkDetail].PressButton();
  program[ui::chkDetail].PressButton();
  EXPECT_TRUE(program.TopPane().TextBecomes("名札"));
}

TEST_F(CaptureTest, DetailBoxRedisplaysAndIsSaved) {
  const Fixture fixture(kFixtureWords);
  Program program;
  program.StartCapture();
  pointer::MoveTo(fixture["leaf"].Center());
  ASSERT_TRUE(program.TopPane().TextBecomes("葉っぱ"));
  ASSERT_TRUE(program[ui::lblMsg].TextBecomes(""));
  program.StopCapture();
  program[ui::chkDetail].PressButton();
  EXPECT_TRUE(WaitFor("the top pane shows another text", [&](std::string& seen) {
    seen = program.TopPane().Text();
    return seen != "葉っぱ";
  }));
  program[ui::chkDetail].PressButton();
  EXPECT_TRUE(program.TopPane().TextBecomes("葉っぱ"));
  program[ui::chkDetail].PressButton();
  ASSERT_TRUE(WaitFor("the box is ticked",
                      [&](std::string&) { return program[ui::chkDetail].IsChecked(); }));
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "detail"), "1");
}

TEST_F(CaptureTest, WrapBoxCopiesTextsAndHeightToTheOtherPanes) {
  const Fixture fixture(kFixtureWords);
  const Program program({.conf = "top height = 1650\n"});
  program.StartCapture();
  pointer::MoveTo(fixture["memo"].Center());
  ASSERT_TRUE(program.TopPane().TextBecomes("一行目\r\n二行目"));
  ASSERT_TRUE(program[ui::lblMsg].TextBecomes(""));
  program.StopCapture();
  const std::string bottom = program.BottomPane().Text();

  const auto showsMember = [&](int wrapping) {
    return program[ui::txtWinTextT0 + wrapping].IsVisible() &&
           program[ui::txtWinTextB0 + wrapping].IsVisible() &&
           !program[ui::txtWinTextT1 - wrapping].IsVisible() &&
           !program[ui::txtWinTextB1 - wrapping].IsVisible();
  };
  program[ui::chkTurnBack].PressButton();
  ASSERT_TRUE(WaitFor("the wrapping panes show", [&](std::string&) { return showsMember(1); }));
  EXPECT_TRUE(program.TopPane().TextBecomes("一行目\r\n二行目"));
  EXPECT_TRUE(program.BottomPane().TextBecomes(bottom));
  EXPECT_TRUE(TextBecomes("the top pane's height", std::to_string(1650 / 15),
                          [&] { return std::to_string(program.TopPane().Size().cy); }));

  program[ui::chkTurnBack].PressButton();
  EXPECT_TRUE(WaitFor("the scrolling panes show", [&](std::string&) { return showsMember(0); }));
}

TEST_F(CaptureTest, SecondPanesWrapAndFirstPanesScroll) {
  const Program program;
  for (const int id : {ui::txtWinTextT0, ui::txtWinTextB0}) {
    EXPECT_NE(program[id].Style() & ES_AUTOHSCROLL, 0) << "control " << id;
  }
  for (const int id : {ui::txtWinTextT1, ui::txtWinTextB1}) {
    EXPECT_EQ(program[id].Style() & (ES_AUTOHSCROLL | WS_HSCROLL), 0) << "control " << id;
  }
}

TEST_F(CaptureTest, ContinuedCaptureShowsNoStopHint) {
  const Program program({.conf = "continue = 1\n"});
  program.StartCapture();
  EXPECT_TRUE(program[ui::lblStatus].TextBecomes(""));
}

TEST_F(CaptureTest, TargetThatHangsDoesNotEndTheCapture) {
  const Fixture fixture(kFixtureWords);
  const Program program;
  program.StartCapture();
  pointer::MoveTo(fixture["static"].Center());
  ASSERT_TRUE(program.TopPane().TextBecomes("名札"));
  fixture.Hang(Milliseconds(1500));
  pointer::MoveTo(fixture["leaf"].Center());
  EXPECT_TRUE(Reports(program, fixture["leaf"]));
  pointer::MoveTo(fixture["button"].Center());
  EXPECT_TRUE(program.TopPane().TextBecomes("押しボタン"));
  EXPECT_TRUE(program.IsCapturing());
}

TEST_F(CaptureTest, TargetThatEndsDoesNotEndTheCapture) {
  const Program program;
  program.StartCapture();
  {
    const Fixture fixture(kFixtureWords);
    pointer::MoveTo(fixture["static"].Center());
    ASSERT_TRUE(program.TopPane().TextBecomes("名札"));
  }
  const Fixture another("title=次の的 edit=別の文");
  pointer::MoveTo(another["edit"].Center());
  EXPECT_TRUE(program.TopPane().TextBecomes("別の文"));
}

}  // namespace
}  // namespace gui
