// The accessible objects of another program, as a capture shows them.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "DialogWindow.h"
#include "accessible/FixtureProcess.h"
#include "bed/Needs.h"
#include "driver/GuiTest.h"
#include "driver/Keys.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Screen.h"
#include "driver/Target.h"
#include "driver/Text.h"
#include "platform/ErrorReport.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

using accessible::FixtureProcess;

constexpr char kFruit[] = "title=果物屋 place=40,40,400,300 fruit";
constexpr char kColumns[] =
    " accName\taccRole:Text\t( Location )\tChildCount=n\taccValue\r\n"
    " ----------------------------------------------------------\r\n";

// On the apple, the first item of the list, and on the button in it.
constexpr POINT kApple = {150, 70};
constexpr POINT kButton = {150, 110};

class AccessibleObjectTest : public GuiTest {};

TEST_F(AccessibleObjectTest, TheReportStandsInTheTopPaneWithDetails) {
  const FixtureProcess fixture(kFruit);
  const Program program({.conf = "detail = 1\n"});
  program.StartCapture();
  pointer::MoveTo(kApple);
  EXPECT_TRUE(program.TopPane().TextBecomes(
      std::string("MSAA(MS Active Accessibility)情報\r\n"
                  "---------------------------------------\r\n"
                  "Name       : 林檎\r\n"
                  "Value      : 赤\r\n"
                  "Role       : 34 リスト項目\r\n"
                  "State      : x300006 "
                  "選択されています。フォーカスされています。フォーカス可。選択可。\r\n"
                  "KbShortCut : Alt+F\r\n"
                  "Location   : (l:60,t:60,r:260,b:80)\r\n"
                  "ChildCount : 0\r\n"
                  "DefAction  : \r\n"
                  "Description: \r\n"
                  "\r\n"
                  "Id         : 1\r\n"
                  "Object Type: Simple Element\r\n"
                  "\r\n"
                  "Ancestors  : top → bottom\r\n") +
      kColumns +
      " \"果物の窓\"\t10:クライアント\t(40,40,440,340)\tChildCount=1\t\"\"\r\n"
      " \"組\"\t20:グループ化\t(50,50,350,230)\tChildCount=1\t\"\"\r\n"
      " \"果物の一覧\"\t33:リスト\t(60,60,260,180)\tChildCount=3\t\"林檎\"\r\n"
      "Children   : 0 max=10\r\n" +
      kColumns));
  EXPECT_TRUE(program[ui::txtWin2].TextBecomes("林檎"));
}

TEST_F(AccessibleObjectTest, FromTheWindowTheReportNamesIt) {
  const FixtureProcess fixture(kFruit);
  const Program program(
      {.conf = "detail = 1\nfrom hwnd = 1\nparent & children = 0\nparent & children max= 0\n"});
  program.StartCapture();
  pointer::MoveTo(kApple);
  EXPECT_TRUE(
      program.TopPane().TextBecomes("MSAA(MS Active Accessibility)情報\r\n"
                                    "　--ウィンドウハンドル(" +
                                    fixture.Control().HandleText() +
                                    ")から取得\r\n"
                                    "　　FixtureAccessible \"果物屋\"\r\n"
                                    "---------------------------------------\r\n"
                                    "Name       : 果物の窓\r\n"
                                    "Value      : \r\n"
                                    "Role       : 10 クライアント\r\n"
                                    "State      : x0 \r\n"
                                    "KbShortCut : \r\n"
                                    "Location   : (l:40,t:40,r:440,b:340)\r\n"
                                    "ChildCount : 1\r\n"
                                    "DefAction  : \r\n"
                                    "Description: \r\n"
                                    "\r\n"
                                    "Id         : 0\r\n"
                                    "Object Type: Container\r\n"
                                    "\r\n"
                                    "\r\n"
                                    "Parents    : 取得最大個数は０になっています\r\n"
                                    "\r\n"
                                    "Children 　: 取得最大個数は０になっています"));
}

// The pointer itself is over the desktop.
TEST_F(AccessibleObjectTest, WithAShiftReportAndTreeAreThoseOfTheShiftedPoint) {
  const FixtureProcess fruit(kFruit);
  const FixtureProcess tree("place=40,400,300,200 tree=5");
  const Program program({.conf = "detail = 1\nshift = 1\nshiftx = -450\nshifty = -30\n"});
  program.MoveWindowTo(860, 20, 400, 700);
  program.StartCapture();
  const auto readAt = [](POINT point) { pointer::MoveTo({point.x + 450, point.y + 30}); };
  readAt(kApple);
  EXPECT_TRUE(WaitFor("the report is that of the apple", [&](std::string& seen) {
    seen = program.TopPane().Text();
    return seen.find("Name       : 林檎\r\n") != std::string::npos;
  }));
  EXPECT_TRUE(program[ui::txtWin2].TextBecomes("林檎"));
  program[ui::chkDetail].PressButton();
  readAt({150, 400 + 2 * 16 + 8});
  EXPECT_TRUE(
      program.BottomPane().TextBecomes("項目1\r\n\t項目2\r\n\t\t項目3\r\n項目4\r\n\t項目5\r\n"));
  EXPECT_TRUE(program.TopPane().TextBecomes("項目3"));
}

TEST_F(AccessibleObjectTest, ChildrenOfUnknownWindowsAreListed) {
  const FixtureProcess fixture(kFruit);
  const Program program;
  program.StartCapture();
  pointer::MoveTo(kApple);
  EXPECT_TRUE(program.TopPane().TextBecomes("林檎"));
  EXPECT_TRUE(program.BottomPane().TextBecomes("組\r\n果物の一覧\r\n林檎\r\n蜜柑\r\n追加\r\n"));
}

TEST_F(AccessibleObjectTest, ItemsOfTreesAreListedIndented) {
  const FixtureProcess fixture("place=40,40,300,200 tree=5");
  const Program program;
  program.StartCapture();
  pointer::MoveTo({150, 40 + 2 * 16 + 8});
  EXPECT_TRUE(program.TopPane().TextBecomes("項目3"));
  EXPECT_TRUE(
      program.BottomPane().TextBecomes("項目1\r\n\t項目2\r\n\t\t項目3\r\n項目4\r\n\t項目5\r\n"));
}

TEST_F(AccessibleObjectTest, AnEndlessTreeIsLeftWhenThePointerMovesOn) {
  const FixtureProcess endless("place=40,40,200,300 endless");
  const FixtureProcess fruit("title=果物屋 place=260,40,200,300 fruit");
  const Program program;
  program.StartCapture();
  pointer::MoveTo({100, 100});
  EXPECT_TRUE(WaitFor("many items are counted", [&](std::string& seen) {
    seen = program[ui::txtCount].Text();
    return seen.size() > 1;
  }));
  pointer::MoveTo({300, 70});
  EXPECT_TRUE(program[ui::txthWnd].TextBecomes(fruit.Control().HandleText()));
  EXPECT_TRUE(program.TopPane().TextBecomes("林檎"));
  EXPECT_TRUE(program.IsCapturing());
}

TEST_F(AccessibleObjectTest, ClosingInTheMiddleOfAReportEndsAtOnceAndSavesNothing) {
  const FixtureProcess endless("place=40,40,200,300 endless");
  const Program program({.conf = "shiftx = 9\n"});
  program.StartCapture();
  pointer::MoveTo({100, 100});
  ASSERT_TRUE(WaitFor("many items are counted", [&](std::string& seen) {
    seen = program[ui::txtCount].Text();
    return seen.size() > 1;
  }));
  program.Close();
  EXPECT_EQ(program.Process().WaitForExit(Milliseconds(1500)), 0U);
  EXPECT_EQ(program.ConfBytes(), "shiftx = 9\r\n");
}

std::vector<unsigned> Ticks(const std::string& actions, const std::string& action) {
  std::vector<unsigned> ticks;
  for (const std::string& one : Split(actions, ";")) {
    const std::size_t sign = one.find('@');
    EXPECT_EQ(one.substr(0, sign), action);
    ticks.push_back(static_cast<unsigned>(std::stoul(one.substr(sign + 1))));
  }
  return ticks;
}

TEST_F(AccessibleObjectTest, AHeldKeyActsOncePerSecond) {
  struct Mode {
    const char* conf;
    const char* hint;
    const char* action;
  };
  for (const Mode& mode : {Mode{"action test = 1\n", "Ctrl で DoDefAction Test", "default 0"},
                           Mode{"action test = 2\n", "Ctrl で Select 1 Test", "select 1 0"},
                           Mode{"action test = 3\n", "Ctrl で Select 2 Test", "select 2 0"}}) {
    const FixtureProcess fixture("place=40,40,400,300 fruit");
    const Program program({.conf = mode.conf});
    program.StartCapture();
    EXPECT_TRUE(program[ui::lblStatus].TextBecomes(std::string("ESCで停止\r\n") + mode.hint));
    pointer::MoveTo(kButton);
    ASSERT_TRUE(program.TopPane().TextBecomes("追加"));
    {
      const keys::Held ctrl(VK_CONTROL);
      Last(Milliseconds(3000));
    }
    const std::vector<unsigned> ticks = Ticks(fixture.Actions(), mode.action);
    EXPECT_GE(ticks.size(), 2U);
    EXPECT_LE(ticks.size(), 3U);
    for (std::size_t i = 1; i < ticks.size(); ++i) EXPECT_GT(ticks[i] - ticks[i - 1], 1000U);
    EXPECT_TRUE(program.IsCapturing());
  }
}

TEST_F(AccessibleObjectTest, WithoutAnActionTestTheKeyDoesNothing) {
  const FixtureProcess fixture("place=40,40,400,300 fruit");
  const Program program({.conf = "action test = 0\n"});
  program.StartCapture();
  pointer::MoveTo(kButton);
  ASSERT_TRUE(program.TopPane().TextBecomes("追加"));
  keys::Stroke({VK_CONTROL}, Milliseconds(500));
  EXPECT_EQ(fixture.Actions(), "");
}

// The objects of Wine's own controls have no actions.
TEST_F(AccessibleObjectTest, AFailedActionIsShownInABoxWithAnOkButton) {
  NEEDS(bed::ProgramsOfWine());
  const WineProgram notepad("notepad.exe", "", "Notepad");
  notepad.MoveTo(30, 30, 560, 420);
  const FixtureProcess fruit("place=40,500,400,300 fruit");
  const Program program({.conf = "action test = 1\n"});
  program.MoveWindowTo(640, 20, 600, 700);
  program.StartCapture();
  const Control edit = notepad.Inside("Edit");
  pointer::MoveTo(edit.Center());
  ASSERT_TRUE(program[ui::txthWnd].TextBecomes(edit.HandleText()));
  keys::Stroke({VK_CONTROL});
  {
    const DialogWindow box(program, kMessageBoxClass);
    EXPECT_EQ(box.Window().Text(), "AccAction - accDoDefaultAction");
    std::string text;
    std::string buttons;
    for (HWND window : Descendants(box.Window().Handle())) {
      const Control part(window, "a part of the box");
      if (part.IsVisible()) (part.ClassName() == "Button" ? buttons : text) += part.Text();
    }
    EXPECT_EQ(text, "-2147467263 " + ToUtf8(platform::SystemDescription(E_NOTIMPL)));
    EXPECT_EQ(buttons, "OK");
    box.Close();
    EXPECT_TRUE(box.Closes());
  }
  pointer::MoveTo({150, 530});
  EXPECT_TRUE(program.TopPane().TextBecomes("林檎"));
  EXPECT_TRUE(program.IsCapturing());
}

// The desktop of Wine has no accessible object.
TEST_F(AccessibleObjectTest, AnActionWithoutAnObjectIsShownInABoxWithAnOkButton) {
  NEEDS(bed::ObjectsOfWine());
  for (const char* const mode : {"1", "2", "3"}) {
    const Program program({.conf = std::string("action test = ") + mode + "\n"});
    program.MoveWindowTo(640, 20, 600, 700);
    program.StartCapture();
    pointer::MoveTo({200, 300});
    ASSERT_TRUE(program[ui::txtWin0].TextBecomes("#32769"));
    keys::Stroke({VK_CONTROL});
    const DialogWindow box(program, kMessageBoxClass);
    std::string text;
    std::string buttons;
    for (HWND window : Descendants(box.Window().Handle())) {
      const Control part(window, "a part of the box");
      if (part.IsVisible()) (part.ClassName() == "Button" ? buttons : text) += part.Text();
    }
    EXPECT_EQ(text, "MSAAオブジェクトではありません");
    EXPECT_EQ(buttons, "OK");
    box.Close();
    EXPECT_TRUE(box.Closes());
    EXPECT_TRUE(program.IsCapturing());
    EXPECT_EQ(program.CloseMessages(), 0);
  }
}

TEST_F(AccessibleObjectTest, AnEdgeBeyond32BitsIsShownInABoxAndTheCaptureGoesOn) {
  const FixtureProcess overflow("place=40,40,200,300 overflow");
  const FixtureProcess fruit("place=260,40,200,300 fruit");
  const Program program({.conf = "detail = 1\n"});
  program.MoveWindowTo(640, 20, 600, 700);
  program.StartCapture();
  pointer::MoveTo({100, 115});
  {
    const DialogWindow box(program, kMessageBoxClass);
    EXPECT_EQ(box.Window().Text(), "GetAccessibleMemberFromPoint");
    box.Close();
    EXPECT_TRUE(box.Closes());
  }
  EXPECT_TRUE(WaitFor("the report ends with it", [&](std::string& seen) {
    seen = program.TopPane().Text();
    return seen.ends_with("KbShortCut : \r\n");
  }));
  pointer::MoveTo({300, 70});
  EXPECT_TRUE(program[ui::txtWin2].TextBecomes("林檎"));
  EXPECT_TRUE(program.IsCapturing());
}

// They end by themselves, or after the pointer has left them: Wine may wait for ever for an object
// whose program is killed while it hands it out.
TEST_F(AccessibleObjectTest, HostileObjectsDoNotEndTheCapture) {
  const Program program({.conf = "detail = 1\n"});
  program.StartCapture();
  const FixtureProcess fruit("place=260,40,200,300 fruit");
  for (const char* const scene : {"cycle", "claims", "huge", "codes", "roleless", "dies"}) {
    const FixtureProcess hostile(std::string("place=40,40,200,300 ") + scene);
    pointer::MoveTo({100, 115});
    EXPECT_TRUE(WaitFor("the window is reported or gone", [&](std::string&) {
      return program[ui::txthWnd].Text() == hostile.Control().HandleText() || !hostile.IsRunning();
    })) << scene;
    pointer::MoveTo({300, 70});
    // A name of five million characters takes its time on a busy machine.
    EXPECT_TRUE(
        program[ui::txthWnd].TextBecomes(fruit.Control().HandleText(), Milliseconds(60'000)))
        << scene;
    EXPECT_TRUE(program[ui::txtWin2].TextBecomes("林檎")) << scene;
    EXPECT_TRUE(program.IsCapturing()) << scene;
  }
}

// Nothing has been typed into them.
constexpr char kEmpty[] = "ここに文字列はありません";

struct RealProgram {
  const char* file;
  const char* windowClass;
  const char* partClass;
  const char* role;
  const char* remark = "";
};

class AccessibleProgramTest : public AccessibleObjectTest,
                              public testing::WithParamInterface<RealProgram> {};

TEST_P(AccessibleProgramTest, IsReported) {
  NEEDS(bed::ProgramsOfWine());
  const WineProgram target(GetParam().file, "", GetParam().windowClass);
  target.MoveTo(20, 20, 0, 0);
  const Program program({.conf = "detail = 1\ntop height = 8000\n"});
  program.MoveWindowTo(640, 20, 600, 900);
  program.StartCapture();
  const Control part = target.Inside(GetParam().partClass);
  const RECT at = part.Rectangle();
  pointer::MoveTo({at.left + 30, at.top + 12});
  EXPECT_TRUE(program[ui::txthWnd].TextBecomes(part.HandleText()));
  EXPECT_TRUE(WaitFor("the report is complete", [&](std::string& seen) {
    seen = program.TopPane().Text();
    return seen.starts_with("MSAA(MS Active Accessibility)情報\r\n") &&
           seen.find(std::string("Role       : ") + GetParam().role + "\r\n") !=
               std::string::npos &&
           seen.find("Children   : ") != std::string::npos;
  }));
  EXPECT_TRUE(program[ui::lblMsg].TextBecomes(GetParam().remark));
  SaveScreenshotWhenPainted(std::string("details-") + GetParam().partClass);
}

INSTANTIATE_TEST_SUITE_P(
    All, AccessibleProgramTest,
    testing::Values(RealProgram{"notepad.exe", "Notepad", "Edit", "42 テキスト", kEmpty},
                    RealProgram{"regedit.exe", "RegEdit_RegEdit", "SysTreeView32",
                                "10 クライアント"},
                    RealProgram{"winecfg.exe", "#32770", "SysTabControl32", "10 クライアント"},
                    // What write.exe starts.
                    RealProgram{"C:\\Program Files\\Windows NT\\Accessories\\wordpad.exe",
                                "WORDPADTOP", "RichEdit20W", "10 クライアント", kEmpty}));

}  // namespace
}  // namespace gui
