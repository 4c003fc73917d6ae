// The page under the pointer, as the running program shows it.
#include <windows.h>

#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "DialogWindow.h"
#include "browser/BrowserProcess.h"
#include "driver/GuiTest.h"
#include "driver/Holdings.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Screen.h"
#include "driver/Target.h"
#include "driver/Text.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

using html::BrowserProcess;

// Screen points on the pages, which begin at 40,40.
constexpr POINT kItem = {100, 130};
constexpr POINT kBody = {390, 320};

constexpr char kPlace[] = "place=40,40,400,300 ";

#define FRUIT_HEAD                                                                        \
  "URL     http://kudamono.example/一覧.html\r\n"                                       \
  "\r\n"                                                                                  \
  "Tag     Type        Id          value       表示文字\r\n"                          \
  "------------------------------------------\r\n"                                        \
  "HTML                                        果物の頁林檎蜜柑葡萄 店へ\r\n" \
  "BODY                                        果物の頁林檎蜜柑葡萄 店へ\r\n"
#define FRUIT_TABLE                                                    \
  FRUIT_HEAD                                                           \
  "DIV                 box                     林檎蜜柑葡萄\r\n" \
  "UL                                          林檎蜜柑葡萄\r\n" \
  "LI                              0           蜜柑\r\n"
#define LIST_MARKUP "\r\n<LI>林檎\r\n<LI>蜜柑\r\n<LI id=last>葡萄</LI>"

class BrowserDocumentTest : public GuiTest {
 protected:
  // Points there and waits for the report.
  static void PointAt(const Program& program, const Control& target, POINT point) {
    pointer::MoveTo(point);
    Require(program[ui::txthWnd].TextBecomes(target.HandleText(), Milliseconds(30000)));
  }
};

TEST_F(BrowserDocumentTest, AnElementInAllPanesAndBoxes) {
  const BrowserProcess browser(std::string(kPlace) + "fruit");
  const Program program({.conf = "start node = 1\nform left = 460\nform top = 40\n"
                                 "form right = 1200\nform bottom = 900\n"});
  program.StartCapture();
  PointAt(program, browser["document"], kItem);
  EXPECT_TRUE(program.BottomPane().TextBecomes(LIST_MARKUP));
  EXPECT_TRUE(program.TopPane().TextBecomes("蜜柑"));
  EXPECT_TRUE(program[ui::txtWin0].TextBecomes("Internet Explorer_Server"));
  EXPECT_TRUE(program[ui::txtWin1].TextBecomes("　LI"));
  EXPECT_TRUE(program[ui::txtWin2].TextBecomes(""));
  EXPECT_TRUE(program[ui::txtWin3].TextBecomes("蜜柑"));
  EXPECT_TRUE(program[ui::lblTextKind].TextBecomes("HTML"));
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes(""));
  EXPECT_FALSE(program[ui::txtCount].IsVisible());
  SaveScreenshotWhenPainted("page-element");

  program[ui::chkDetail].PressButton();
  EXPECT_TRUE(program.BottomPane().TextBecomes(FRUIT_TABLE));
  EXPECT_TRUE(WaitFor("the accessible report is in the top pane", [&](std::string& seen) {
    seen = program.TopPane().Text();
    return seen.starts_with("MSAA(MS Active Accessibility)情報\r\n");
  }));
  SaveScreenshotWhenPainted("page-element-detail");
}

TEST_F(BrowserDocumentTest, DisplayedTextInsteadOfMarkup) {
  const BrowserProcess browser(std::string(kPlace) + "fruit");
  const Program program({.conf = "disp text = 1\nstart node = 2\n"});
  program.StartCapture();
  PointAt(program, browser["document"], kItem);
  EXPECT_TRUE(program.BottomPane().TextBecomes("林檎\r\n蜜柑\r\n葡萄"));
  PointAt(program, browser["document"], kBody);
  EXPECT_TRUE(
      program.BottomPane().TextBecomes("果物の頁\r\n\r\n林檎\r\n蜜柑\r\n葡萄\r\n\r\n 店へ"));
  EXPECT_TRUE(program[ui::txtWin1].TextBecomes("　BODY"));
}

TEST_F(BrowserDocumentTest, TheTableOfAnInputInDetail) {
  const BrowserProcess browser(std::string(kPlace) + "fruit");
  const Program program({.conf = "detail = 1\n"});
  program.StartCapture();
  PointAt(program, browser["document"], {90, 260});
  EXPECT_TRUE(program.BottomPane().TextBecomes(
      FRUIT_HEAD "INPUT   text        fruit       無花果         \r\n"));
  EXPECT_TRUE(program[ui::txtWin3].TextBecomes("無花果"));
}

// With a shift the read point selects the frames, and the pointer the element.
TEST_F(BrowserDocumentTest, AShiftedPointChoosesTheFrame) {
  const BrowserProcess browser(std::string(kPlace) + "scrolled");
  const Program program({.conf = "shift = 1\nshiftx = -290\nshifty = -210\ndisp text = 1\n"});
  program.StartCapture();
  PointAt(program, browser["document"], {430, 330});
  EXPECT_TRUE(program[ui::txtWin1].TextBecomes("first/second/third　BODY"));
  EXPECT_TRUE(program.BottomPane().TextBecomes("奥"));
  program.StopCapture();
}

TEST_F(BrowserDocumentTest, FramesAreNamedInTheBox) {
  const BrowserProcess browser(std::string(kPlace) + "frameset");
  const Program program({.conf = "detail = 1\n"});
  program.StartCapture();
  PointAt(program, browser["document"], {200, 150});
  EXPECT_TRUE(program[ui::txtWin1].TextBecomes("body/ad　P"));
  EXPECT_TRUE(
      program.BottomPane().TextBecomes("URL     http://host.example/set\r\n"
                                       "\r\n"
                                       "Tag     Type        Id          value       表示文字\r\n"
                                       "------------------------------------------\r\n"
                                       "HTML                                        \r\n"
                                       "FRAMESET                                     \r\n"
                                       "FRAME               body                    \r\n"
                                       "HTML                                        本文\r\n"
                                       "BODY                                        本文\r\n"
                                       "IFRAME              ad                      \r\n"
                                       "HTML                                        広告\r\n"
                                       "BODY                                        広告\r\n"
                                       "P                   pr                      広告\r\n"));
  SaveScreenshotWhenPainted("page-frames-detail");
}

TEST_F(BrowserDocumentTest, OtherWindowsAreReportedAfterAHungOne) {
  const BrowserProcess hung(std::string(kPlace) + "hung");
  const Fixture fixture("place=40,400,480,420 button=隣");
  const Program program({.conf = "form left = 560\nform top = 40\nform right = 1200\n"
                                 "form bottom = 900\n"});
  program.StartCapture();
  pointer::MoveTo(kItem);
  ASSERT_TRUE(program[ui::txthWnd].TextBecomes(hung["document"].HandleText()));
  const auto start = std::chrono::steady_clock::now();
  pointer::MoveTo(fixture["button"].Center());
  EXPECT_TRUE(program[ui::txthWnd].TextBecomes(fixture["button"].HandleText()));
  EXPECT_TRUE(program.TopPane().TextBecomes("隣"));
  EXPECT_LT(std::chrono::steady_clock::now() - start, Milliseconds(4000));
  EXPECT_TRUE(program.IsCapturing());
}

// A failure in the search for the element is shown in a box, and the capture waits for the user.
// With the shift the descent of the read point and the one of the pointer are at different points.
TEST_F(BrowserDocumentTest, APageThatEndsDuringTheSearchForItsElementIsShownInABox) {
  const Fixture fixture("place=40,400,480,420 button=隣");
  const Program program({.conf = "shift = 1\nshiftx = 20\nshifty = 0\ndisp top = 1\n"
                                 "form left = 490\nform top = 40\nform right = 1200\n"
                                 "form bottom = 900\n"});
  program.StartCapture();
  const BrowserProcess dying(std::string(kPlace) + "\"dies=elementFromPoint 60,90\"");
  pointer::MoveTo(kItem);
  {
    const DialogWindow box(program, kMessageBoxClass);
    EXPECT_EQ(box.Window().Text(), "GetElFromPoint");
    // Not even a topmost main window hides it.
    EXPECT_EQ(GetAncestor(WindowFromPoint(box.Window().Center()), GA_ROOT), box.Window().Handle());
    EXPECT_NE(GetWindowLongW(box.Window().Handle(), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
    std::string text;
    for (HWND part : Descendants(box.Window().Handle())) text += Control(part, "").Text();
    // The system's errors of remote calls.
    EXPECT_NE(text.find("-21470231"), std::string::npos) << text;
    EXPECT_NE(text.find("\r\nError Line = 0"), std::string::npos) << text;
    SaveScreenshotWhenPainted("page-error");
    pointer::MoveTo(fixture["button"].Center());
    EXPECT_TRUE(program.IsCapturing());
    box.Close();
    EXPECT_TRUE(box.Closes());
  }
  EXPECT_TRUE(program[ui::txthWnd].TextBecomes(fixture["button"].HandleText()));
  EXPECT_TRUE(program.TopPane().TextBecomes("隣"));
  EXPECT_EQ(program.CloseMessages(), 0);
}

// Pages end by themselves, or after the pointer has left them: Wine waits for ever when one is
// killed just after it has handed out its document.
TEST_F(BrowserDocumentTest, HostilePagesDoNotEndTheCapture) {
  const Fixture fixture("place=40,400,480,420 button=隣");
  const Program program({.conf = "detail = 1\nform left = 560\nform top = 40\n"
                                 "form right = 1200\nform bottom = 900\n"});
  program.StartCapture();
  for (const char* const scene : {"zero", "junk", "refused", "circle", "huge", "failing",
                                  "dies=tagName", "dies=innerText", "dies=parentElement"}) {
    const BrowserProcess hostile(std::string(kPlace) + scene);
    pointer::MoveTo(kItem);
    EXPECT_TRUE(WaitFor(
        "the page is reported or gone",
        [&](std::string& seen) {
          seen = program[ui::txthWnd].Text();
          return seen == hostile["document"].HandleText() || !hostile.IsRunning();
        },
        Milliseconds(20000)))
        << scene;
    pointer::MoveTo(fixture["button"].Center());
    EXPECT_TRUE(WaitFor(
        "the other window is reported",
        [&](std::string& seen) {
          // The page has ended during its report, perhaps in the search for the element.
          program.CloseMessages();
          seen = program[ui::txthWnd].Text();
          return seen == fixture["button"].HandleText();
        },
        Milliseconds(30000)))
        << scene;
    EXPECT_TRUE(WaitFor("the report is complete", [&](std::string& seen) {
      seen = program.BottomPane().Text();
      return seen.find(fixture["button"].HandleText()) != std::string::npos;
    })) << scene;
    EXPECT_TRUE(program.IsCapturing()) << scene;
  }
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes(""));
}

TEST_F(BrowserDocumentTest, WithoutADocumentTheMessageLineSaysSo) {
  const BrowserProcess browser(std::string(kPlace) + "zero");
  const Program program({.conf = "detail = 1\n"});
  program.StartCapture();
  PointAt(program, browser["document"], kItem);
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes("GetElByPos:Generate Html-DOC failed"));
  EXPECT_TRUE(WaitFor("the window is described instead", [&](std::string& seen) {
    seen = program.BottomPane().Text();
    return seen.starts_with("ウィンドウ情報\r\n");
  }));
}

}  // namespace
}  // namespace gui
