// Conf.txt as the running program reads and writes it.
#include <windows.h>

#include <gtest/gtest.h>

#include "SettingsText.h"
#include "bed/Needs.h"
#include "driver/GuiTest.h"
#include "driver/Owners.h"
#include "driver/Program.h"
#include "driver/Text.h"
#include "driver/Windows.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

class ConfigFileTest : public GuiTest {
 protected:
  // What the program writes when it is closed right after that start.
  static std::vector<std::string> WrittenAfter(const ProgramStart& start) {
    Program program(start);
    EXPECT_EQ(program.CloseAndWait(), 0U);
    return program.ConfLines();
  }
};

// Halves go to the even neighbour.
long Rounded(long numerator, long denominator) {
  const long whole = numerator / denominator;
  const long twice = 2 * (numerator % denominator);
  return twice > denominator || (twice == denominator && whole % 2 != 0) ? whole + 1 : whole;
}

TEST_F(ConfigFileTest, FirstRunWritesEveryDefaultInOrder) {
  const long width = GetSystemMetrics(SM_CXSCREEN);
  const long height = GetSystemMetrics(SM_CYSCREEN);
  const std::vector<std::string> expected = {
      "form left = " + std::to_string(Rounded(width, 2)),
      "form top = " + std::to_string(Rounded(height, 3)),
      "form right = " + std::to_string(Rounded(width * 4, 5)),
      "form bottom = " + std::to_string(Rounded(height * 3, 4)),
      "top height = 1200",
      "disp Top = 1",
      "treeview indent = 1",
      "listview col = 0",
      "to file = 0",
      "turn back = 0",
      "mous pos = screen",
      "win handle = dec",
      "hotkey = ESC",
      "enable hot t = 1",
      "disp text = 0",
      "start node = 0",
      "auto start= 0",
      "clipboard= 0",
      "hint = 0",
      "auto stop = 0",
      "auto stop time = 0",
      "auto close = 0",
      "chime = 1",
      "chime file = chimes.wav",
      "detail = 0",
      "shift = 0",
      "shiftx = 20",
      "shifty = 30",
      "continue = 0",
      "parent & children = 1",
      "parent & children max= 10",
      "accname max = 50",
      "from hwnd = 0",
      "action test = 0",
      "html tag text length = 50",
      "accValue text = edit,DirectUIHWND",
      "setting no = 0",
      "setting left = " + std::to_string(Rounded(width * 15 - 4725, 2)),
      "setting top = " + std::to_string(Rounded(height * 15 - 7725, 2)),
  };
  EXPECT_EQ(WrittenAfter({}), expected);
}

TEST_F(ConfigFileTest, EveryLineEndsWithCrLfAndNoMarkStandsInFront) {
  Program program;
  ASSERT_EQ(program.CloseAndWait(), 0U);
  const std::string bytes = program.ConfBytes();
  EXPECT_TRUE(bytes.starts_with("form left = "));
  EXPECT_TRUE(bytes.ends_with("\r\n"));
  std::size_t lineFeeds = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] != '\n') continue;
    ++lineFeeds;
    EXPECT_EQ(bytes[i - 1], '\r') << "at byte " << i;
  }
  EXPECT_EQ(lineFeeds, 39U);
}

TEST_F(ConfigFileTest, FileStandsBesideTheProgram) {
  Program program;
  EXPECT_FALSE(std::filesystem::exists(program.ConfFile()));
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_TRUE(std::filesystem::exists(program.ConfFile()));
}

TEST_F(ConfigFileTest, EveryKeySurvivesARun) {
  NEEDS(bed::CodePage932());
  const std::vector<std::string> lines = {
      "form left = 77",
      "form top = 55",
      "form right = 611",
      "form bottom = 533",
      "top height = 1815",
      "disp Top = 0",
      "treeview indent = 0",
      "listview col = 2",
      "to file = 1",
      "turn back = 1",
      "mous pos = client",
      "win handle = hex",
      "hotkey = Shift+F9",
      "enable hot t = 0",
      "disp text = 1",
      "start node = 4",
      "auto start= 0",
      "clipboard= 3",
      "hint = 1",
      "auto stop = 1",
      "auto stop time = 17",
      "auto close = 1",
      "chime = 0",
      "chime file = 鐘の音.wav",
      "detail = 1",
      "shift = 1",
      "shiftx = -12",
      "shifty = 44",
      "continue = 1",
      "parent & children = 0",
      "parent & children max= 23",
      "accname max = 31",
      "from hwnd = 1",
      "action test = 2",
      "html tag text length = 64",
      "accValue text = Edit,Scintilla,表",
      "setting no = 3",
      "setting left = 1234",
      "setting top = -567",
  };
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  EXPECT_EQ(WrittenAfter({.conf = text}), lines);
}

TEST_F(ConfigFileTest, JapaneseValuesAreWrittenInTheSystemCodePage) {
  NEEDS(bed::CodePage932());
  Program program({.conf = "chime file = 鐘.wav\n"});
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_NE(program.ConfBytes().find("chime file = \x8f\xe0.wav\r\n"), std::string::npos);
}

TEST_F(ConfigFileTest, HandWrittenLinesAreUnderstood) {
  const auto lines = WrittenAfter({.conf = "HTML Tag Text Length=12abc\n"
                                           "  ShiftX  =  -7.5\n"
                                           "accname max = 2.5\n"
                                           "accname max = 3.5\n"
                                           "disp TOP=0\n"
                                           "ACCVALUE TEXT =  Foo Bar \n"
                                           "auto stop time = soon\n"
                                           "hotkey =\n"});
  EXPECT_EQ(ValueOf(lines, "html tag text length"), "12");
  EXPECT_EQ(ValueOf(lines, "shiftx"), "-8");
  EXPECT_EQ(ValueOf(lines, "accname max"), "4");
  EXPECT_EQ(ValueOf(lines, "disp Top"), "0");
  EXPECT_EQ(ValueOf(lines, "accValue text"), "Foo Bar");
  EXPECT_EQ(ValueOf(lines, "auto stop time"), "0");
  EXPECT_EQ(ValueOf(lines, "hotkey"), "");
}

TEST_F(ConfigFileTest, LinesWithoutExactlyOneEqualsSignAreDropped) {
  const auto lines = WrittenAfter({.conf = "accValue text = a=b\n"
                                           "shifty 99\n"
                                           "hotkey = F6 = x\n"
                                           "no such key = 1\n"});
  EXPECT_EQ(ValueOf(lines, "accValue text"), "edit,DirectUIHWND");
  EXPECT_EQ(ValueOf(lines, "shifty"), "30");
  EXPECT_EQ(ValueOf(lines, "hotkey"), "ESC");
  EXPECT_EQ(ValueOf(lines, "no such key"), "(missing)");
  EXPECT_EQ(lines.size(), 39U);
}

TEST_F(ConfigFileTest, PositionModeInOtherCaseIsKeptAsWritten) {
  EXPECT_EQ(ValueOf(WrittenAfter({.conf = "mous pos = Client\n"}), "mous pos"), "Client");
}

TEST_F(ConfigFileTest, MovedWindowIsSavedInPixels) {
  Program program;
  program.MoveWindowTo(101, 92, 431, 377);
  ASSERT_EQ(program.CloseAndWait(), 0U);
  const auto lines = program.ConfLines();
  EXPECT_EQ(ValueOf(lines, "form left"), "101");
  EXPECT_EQ(ValueOf(lines, "form top"), "92");
  EXPECT_EQ(ValueOf(lines, "form right"), "532");
  EXPECT_EQ(ValueOf(lines, "form bottom"), "469");
}

TEST_F(ConfigFileTest, MaximisedWindowSavesItsNormalRectangle) {
  Program program({.conf = "form left = 90\nform top = 80\nform right = 510\nform bottom = 460\n"});
  ShowWindowAsync(program.Window().Handle(), SW_MAXIMIZE);
  ASSERT_TRUE(WaitFor("the window is maximised",
                      [&](std::string&) { return IsZoomed(program.Window().Handle()) != FALSE; }));
  ASSERT_EQ(program.CloseAndWait(), 0U);
  const auto lines = program.ConfLines();
  EXPECT_EQ(ValueOf(lines, "form left"), "90");
  EXPECT_EQ(ValueOf(lines, "form bottom"), "460");
}

TEST_F(ConfigFileTest, MinimisedWindowSavesItsRectangleAndPaneHeight) {
  Program program({.conf = "form left = 90\nform top = 80\nform right = 510\nform bottom = 460\n"
                           "top height = 1950\n"});
  ShowWindowAsync(program.Window().Handle(), SW_MINIMIZE);
  ASSERT_TRUE(WaitFor("the window is minimised",
                      [&](std::string&) { return IsIconic(program.Window().Handle()) != FALSE; }));
  ASSERT_EQ(program.CloseAndWait(), 0U);
  const auto lines = program.ConfLines();
  EXPECT_EQ(ValueOf(lines, "form right"), "510");
  EXPECT_EQ(ValueOf(lines, "top height"), "1950");
}

TEST_F(ConfigFileTest, FileThatCannotBeWrittenStaysWithoutAMessage) {
  Program program({.conf = "shiftx = 5\n"});
  {
    const OwnedHandle held(CreateFileW(program.ConfFile().c_str(), GENERIC_READ, FILE_SHARE_READ,
                                       nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_NE(held.get(), INVALID_HANDLE_VALUE);
    EXPECT_EQ(program.CloseAndWait(), 0U);
  }
  EXPECT_EQ(program.ConfBytes(), "shiftx = 5\r\n");
}

TEST_F(ConfigFileTest, LastOfTwoRunningProgramsWins) {
  Program first({.conf = "shiftx = 5\n"});
  Program second({.folder = first.Folder()});
  first.MoveWindowTo(11, 12, 400, 400);
  second.MoveWindowTo(21, 22, 400, 400);
  ASSERT_EQ(second.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(second.ConfLines(), "form left"), "21");
  ASSERT_EQ(first.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(first.ConfLines(), "form left"), "11");
}

}  // namespace
}  // namespace gui
