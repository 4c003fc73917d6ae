// The whole report on programs that come with Wine: list text, window information, status text.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>

#include "bed/Needs.h"
#include "driver/GuiTest.h"
#include "driver/Keys.h"
#include "driver/Paths.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Screen.h"
#include "driver/Target.h"
#include "driver/Text.h"
#include "driver/Windows.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

std::string Hexadecimal(HWND window) {
  char digits[16] = {};
  std::snprintf(digits, sizeof digits, "%X",
                static_cast<unsigned>(reinterpret_cast<UINT_PTR>(window)));
  return digits;
}

std::string Place(const Control& window) {
  const RECT at = window.Rectangle();
  return "(" + std::to_string(at.left) + "," + std::to_string(at.top) + "," +
         std::to_string(at.right) + "," + std::to_string(at.bottom) + ")";
}

class ReportTest : public GuiTest {
 protected:
  void SetUp() override {
    NEEDS(bed::ProgramsOfWine());
    GuiTest::SetUp();
  }

  // Points there and waits for the end of the report on the window under it, and for its remark.
  static Control PointAt(const Program& program, POINT point, Milliseconds patience = kPatience,
                         std::string_view remark = {}) {
    const Control target(WindowFromPoint(point), "the target");
    // Wine moves the pointer back now and then, so it is moved again while the report is awaited.
    Require(WaitFor("the report begins", [&](std::string& seen) {
      pointer::MoveTo(point);
      seen = program[ui::txthWnd].Text();
      return seen == target.HandleText();
    }));
    Require(program[ui::lblMsg].TextBecomes(remark, patience));
    return target;
  }

  static std::string ArgumentFor(const std::string& text, const wchar_t* name) {
    const std::filesystem::path file = FreshFolder() / name;
    std::ofstream(file, std::ios::binary) << ToCodePage(text);
    return "\"" + ToUtf8(file.wstring()) + "\"";
  }
};

TEST_F(ReportTest, NotepadsEditAndStatusBar) {
  const std::string text = "一行目\r\n二行目";
  const WineProgram notepad("notepad.exe", ArgumentFor(text, L"二行.txt"), "Notepad");
  notepad.MoveTo(30, 30, 560, 420);
  const Program program;
  program.StartCapture();
  PointAt(program, notepad.Inside("Edit").Center());
  EXPECT_TRUE(program.TopPane().TextBecomes(text));
  EXPECT_TRUE(program.BottomPane().TextBecomes(text));
  EXPECT_TRUE(program[ui::lblTextKind].TextBecomes("Accessible"));
  EXPECT_TRUE(program[ui::lblListKind].TextBecomes("WM_GETTEXT"));
  SaveScreenshotWhenPainted("notepad");
  const std::string status = notepad.Inside("msctls_statusbar32").Text();
  ASSERT_NE(status, "");
  EXPECT_TRUE(program[ui::txtStatus].TextBecomes(status));
}

TEST_F(ReportTest, NotepadsWindowInformation) {
  const WineProgram notepad("notepad.exe", ArgumentFor("本文", L"情報.txt"), "Notepad");
  notepad.MoveTo(30, 30, 560, 420);
  const Program program({.conf = "detail = 1\n"});
  program.StartCapture();
  const Control edit = PointAt(program, notepad.Inside("Edit").Center());
  const std::string handle = edit.HandleText();
  EXPECT_TRUE(program.BottomPane().TextBecomes(
      "ウィンドウ情報\r\n"
      "--------------------------------------\r\n"
      "ハンドル　　　：" +
      handle + "(x" + Hexadecimal(edit.Handle()) +
      ")\r\n"
      "クラス名　　　：Edit\r\n"
      "タイトル　　　：\r\n"
      "位置(左上右下)：" +
      Place(edit) +
      "\r\n"
      "\r\n"
      "オーナー　　  ：\r\n"
      "\r\n"
      "親ウィンドウ  ： top → bottom\r\n"
      " hWnd\tClassName\t(Location)\t\tTitle \r\n"
      " -----------------------------------------------------------------------\r\n"
      " " +
      notepad.Window().HandleText() + "\tNotepad\t" + Place(notepad.Window()) + "\t \"" +
      notepad.Window().Text() +
      "\"\r\n"
      "\r\n"
      "子ウィンドウ\r\n"
      "\r\n"
      "ハンドル クラス名               位置(左,上,右,下)    表示文字\r\n"
      "-------------------------------------------------------------\r\n"));
}

TEST_F(ReportTest, ChildrenOfNotepadInHexadecimal) {
  const WineProgram notepad("notepad.exe", ArgumentFor("本文", L"子.txt"), "Notepad");
  notepad.MoveTo(30, 30, 560, 420);
  const Program program({.conf = "detail = 1\nwin handle = hex\n"});
  program.StartCapture();
  const RECT at = notepad.Window().Rectangle();
  pointer::MoveTo({at.left + 80, at.top + 12});
  Require(program[ui::txthWnd].TextBecomes(Hexadecimal(notepad.Window().Handle())));
  Require(program[ui::lblMsg].TextBecomes(""));
  const Control edit = notepad.Inside("Edit");
  const std::string digits = "x" + Hexadecimal(edit.Handle());
  const std::string line = std::string(8 - digits.size(), ' ') + digits +
                           " Edit                      " + Place(edit) + "  \r\n";
  EXPECT_THAT(program.BottomPane().Text(), HasSubstr(line));
}

TEST_F(ReportTest, AMenuThatIsOpen) {
  const Program program({.conf = "form left = 700\nform top = 500\nform right = 1100\n"
                                 "form bottom = 900\n"});
  program.StartCapture();
  // Started last, so it is in front without a click: Wine loses the foreground now and then when
  // it goes from one program to another by synthetic clicks.
  const WineProgram notepad("notepad.exe", "", "Notepad");
  notepad.MoveTo(100, 100, 500, 400);
  const HWND front = notepad.Window().Handle();
  Require(WaitFor("Notepad comes to rest in front", [&](std::string& seen) {
    seen = Control(GetForegroundWindow(), "").ClassName();
    if (GetForegroundWindow() != front) SetForegroundWindow(front);
    return bool(Stays(
        "", [&](std::string&) { return GetForegroundWindow() == front; }, Milliseconds(700)));
  }));
  PostMessageW(notepad.Window().Handle(), WM_SYSCOMMAND, SC_KEYMENU, L'f');
  HWND menu = nullptr;
  Require(WaitFor("the menu is open", [&](std::string&) {
    menu = FindWindowW(L"#32768", nullptr);
    // It is visible before it is at its place.
    return menu != nullptr && IsWindowVisible(menu) &&
           WindowFromPoint(Control(menu, "the menu").Center()) == menu;
  }));
  // The program of the menu is in front, so its status bar is shown. Wine moves the pointer back
  // from a menu more often than from other windows.
  const std::string status = notepad.Inside("msctls_statusbar32").Text();
  EXPECT_TRUE(WaitFor("the menu is reported", [&](std::string& seen) {
    pointer::MoveTo(Control(menu, "the menu").Center());
    seen = program[ui::txtWin0].Text() + " " + program[ui::txtStatus].Text();
    return seen == "#32768 " + status;
  }));
  EXPECT_TRUE(IsWindowVisible(menu)) << "reading must not close it";
  SaveScreenshotWhenPainted("menu");
}

TEST_F(ReportTest, TaskManagersTabsAndStatusBar) {
  const WineProgram taskmgr("taskmgr.exe", "", "#32770");
  taskmgr.MoveTo(30, 30, 0, 0);
  const Program program;
  program.StartCapture();
  const Control tabs = taskmgr.Inside("SysTabControl32");
  const RECT at = tabs.Rectangle();
  PointAt(program, {at.left + 20, at.top + 10});
  EXPECT_TRUE(program[ui::txtWin0].TextBecomes("SysTabControl32"));
  EXPECT_THAT(program.BottomPane().Text(), testing::Not(testing::IsEmpty()));
  EXPECT_THAT(program.BottomPane().Text(), testing::EndsWith("\r\n"));
  SaveScreenshotWhenPainted("taskmgr");
}

TEST_F(ReportTest, WordPadsRichEdit) {
  const WineProgram write("..\\Program Files\\Windows NT\\Accessories\\wordpad.exe", "",
                          "WORDPADTOP");
  write.MoveTo(20, 20, 600, 420);
  const Control edit = write.Inside("RichEdit20W");
  edit.SetText("書式のある文字");
  const Program program;
  program.StartCapture();
  PointAt(program, edit.Center());
  EXPECT_TRUE(program.BottomPane().TextBecomes("書式のある文字"));
  SaveScreenshotWhenPainted("wordpad");
}

// Its items are drawn by the program itself, there are no texts to read.
TEST_F(ReportTest, FileManagersListBoxWithoutTexts) {
  const WineProgram winefile("winefile.exe", "", "WFS_Frame");
  winefile.MoveTo(20, 20, 600, 420);
  const Program program;
  program.StartCapture();
  const Control list = winefile.Inside("ListBox");
  ASSERT_EQ(list.Style() & LBS_HASSTRINGS, 0);
  PointAt(program, list.Center(), kPatience, "ここに文字列はありません");
  EXPECT_TRUE(program[ui::txtWin0].TextBecomes("ListBox"));
  EXPECT_TRUE(program.BottomPane().TextBecomes(""));
  SaveScreenshotWhenPainted("winefile");
}

// The list of the authors of Wine: almost two thousand items.
class LongListTest : public ReportTest {
 protected:
  static std::string Item(const Control& list, int index) {
    const auto length = SendMessageW(list.Handle(), LB_GETTEXTLEN, static_cast<WPARAM>(index), 0);
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    SendMessageW(list.Handle(), LB_GETTEXT, static_cast<WPARAM>(index),
                 reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return ToUtf8(text);
  }

  void SetUp() override {
    ReportTest::SetUp();
    if (IsSkipped()) return;
    winver_.emplace("winver.exe", "", "#32770");
    winver_->MoveTo(20, 20, 0, 0);
  }

  Control List() const { return winver_->Inside("ListBox"); }

  std::optional<WineProgram> winver_;
};

TEST_F(LongListTest, IsReadWhole) {
  const Control list = List();
  const auto count = static_cast<int>(SendMessageW(list.Handle(), LB_GETCOUNT, 0, 0));
  ASSERT_GT(count, 1000);
  std::string all;
  for (int i = 0; i < count; ++i) all += Item(list, i) + "\r\n";
  const Program program;
  program.StartCapture();
  PointAt(program, list.Center(), Milliseconds(60000));
  EXPECT_TRUE(program.BottomPane().TextBecomes(all));
  EXPECT_TRUE(program[ui::txtCount].TextBecomes(std::to_string(count - 1) + "/" +
                                                std::to_string(count - 1)));
}

TEST_F(LongListTest, EndsWithAMarkWhenThePointerGoesOn) {
  const Program program;
  program.StartCapture();
  pointer::MoveTo(List().Center());
  Require(WaitFor("the list is being read", [&](std::string& seen) {
    seen = program[ui::txtCount].Text();
    return !seen.empty();
  }));
  // Repeatedly, so that no other report replaces the text.
  const RECT away = winver_->Window().Rectangle();
  LONG step = 0;
  EXPECT_TRUE(WaitFor("the text ends with the mark", [&](std::string& seen) {
    step = (step + 1) % 40;
    pointer::MoveTo({away.left + 60 + step, away.top + 8});
    seen = program.BottomPane().Text();
    return seen.ends_with("\r\n・・・中断・・・");
  }));
  EXPECT_THAT(program.BottomPane().Text(), StartsWith(Item(List(), 0) + "\r\n"));
}

TEST_F(LongListTest, LeavesTheStopKeyAliveWhileItIsRead) {
  const Program program({.conf = "hotkey = ESC\n"});
  program.StartCapture();
  pointer::MoveTo(List().Center());
  Require(WaitFor("the list is being read", [&](std::string& seen) {
    seen = program[ui::txtCount].Text();
    return !seen.empty();
  }));
  // The position is still shown, and the key still stops.
  EXPECT_FALSE(program[ui::lblMousePos].Text().empty());
  keys::Stroke({VK_ESCAPE});
  EXPECT_TRUE(program[ui::cmdGo].TextBecomes("開始"));
  EXPECT_THAT(program.BottomPane().Text(), EndsWith("\r\n・・・中断・・・"));
}

}  // namespace
}  // namespace gui
