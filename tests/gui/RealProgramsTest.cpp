// Captures over programs that come with Wine.
#include <windows.h>

#include <commctrl.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "ListFixture.h"
#include "OtherReading.h"
#include "RegistryKey.h"
#include "bed/Needs.h"
#include "driver/GuiTest.h"
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

class RealProgramsTest : public GuiTest {
 protected:
  void SetUp() override {
    NEEDS(bed::ProgramsOfWine());
    GuiTest::SetUp();
  }

  // Moves the pointer there and waits until the boxes show what the system finds at that point.
  static void ExpectReport(const Program& program, POINT point, const Control& target) {
    pointer::MoveTo(point);
    ASSERT_EQ(Control(WindowFromPoint(point), "").ClassName(), target.ClassName());
    ASSERT_EQ(WindowFromPoint(point), target.Handle());
    EXPECT_TRUE(program[ui::txthWnd].TextBecomes(target.HandleText()));
    EXPECT_TRUE(program[ui::txtWin0].TextBecomes(target.ClassName()));
    EXPECT_TRUE(program[ui::lblMsg].TextBecomes(""));
  }

  static void ExpectPanes(const Program& program, const std::string& top,
                          const std::string& bottom) {
    EXPECT_TRUE(program.TopPane().TextBecomes(top));
    EXPECT_TRUE(program.BottomPane().TextBecomes(bottom));
  }

  // What the bottom pane shows of it.
  static std::string ItemsOf(const Control& list) {
    return ToUtf8(cross::ReadOtherwise(cross::KindOfClass(list.ClassName()), list.Handle()));
  }

  static POINT CaptionOf(const Control& window) {
    const RECT at = window.Rectangle();
    return {at.left + 80, at.top + 12};
  }
};

TEST_F(RealProgramsTest, NotepadWithAJapaneseText) {
  const std::string text = "吾輩は猫である。\r\n名前はまだ無い。\r\nABC ｶﾅ 123";
  const std::filesystem::path file = FreshFolder() / L"猫.txt";
  {
    std::ofstream out(file, std::ios::binary);
    out << ToCodePage(text);
  }
  const std::string argument = "\"" + ToUtf8(file.wstring()) + "\"";
  const WineProgram notepad("notepad.exe", argument, "Notepad");
  notepad.MoveTo(30, 30, 560, 420);
  const Program program({.folder = file.parent_path()});
  program.StartCapture();

  const Control edit = notepad.Inside("Edit");
  ASSERT_TRUE(edit.TextBecomes(text));
  ExpectReport(program, edit.Center(), edit);
  EXPECT_TRUE(program.TopPane().TextBecomes(text));
  SaveScreenshotWhenPainted("notepad");

  ExpectReport(program, CaptionOf(notepad.Window()), notepad.Window());
  EXPECT_TRUE(program.TopPane().TextBecomes(notepad.Window().Text()));
  EXPECT_THAT(notepad.Window().Text(), testing::HasSubstr("猫"));
}

TEST_F(RealProgramsTest, RegistryEditor) {
  const cross::RegistryKey shown(HKEY_CURRENT_USER, L"Software\\Velmora 試験",
                                 {{L"名前", L"値, \"引用\""}, {L"b", L"c"}});
  const cross::RegistryKey start(HKEY_CURRENT_USER,
                                 L"Software\\Microsoft\\Windows\\CurrentVersion\\Applets\\Regedit",
                                 {{L"LastKey", L"HKEY_CURRENT_USER\\Software\\Velmora 試験"}});
  const WineProgram regedit("regedit.exe", "", "RegEdit_RegEdit");
  regedit.MoveTo(30, 30, 580, 460);
  const Program program;
  program.StartCapture();
  const Control list = regedit.Inside("SysListView32");
  ASSERT_TRUE(WaitFor("the list shows the values", [&](std::string&) {
    return SendMessageW(list.Handle(), LVM_GETITEMCOUNT, 0, 0) == 3;
  }));
  const RECT values = list.Rectangle();
  ExpectReport(program, {values.left + 40, values.bottom - 40}, list);
  EXPECT_TRUE(program.TopPane().TextBecomes(list.Text()));
  EXPECT_TRUE(WaitFor("the values are listed", [&](std::string& seen) {
    seen = program.BottomPane().Text();
    return std::ranges::count(seen, '\n') == 3 &&
           seen.find("名前\tREG_SZ\t値, \"引用\"\r\n") != std::string::npos;
  }));
  // The accessible object of Wine's tree has no items, so the whole tree is read by messages.
  const Control tree = regedit.Inside("SysTreeView32");
  const RECT keys = tree.Rectangle();
  ExpectReport(program, {keys.left + 40, keys.bottom - 40}, tree);
  EXPECT_TRUE(program[ui::lblListKind].TextBecomes("TVM_GETITEMW"));
  EXPECT_TRUE(WaitFor("the keys are listed", [&](std::string& seen) {
    seen = program.BottomPane().Text();
    return seen.find("\r\n\tHKEY_CLASSES_ROOT\r\n\tHKEY_CURRENT_USER\r\n\t\tAppEvents\r\n") !=
               std::string::npos &&
           seen.find("\r\n\t\t\tVelmora 試験\r\n") != std::string::npos &&
           seen.find("\r\n\tHKEY_USERS\r\n") != std::string::npos;
  }));
  ExpectReport(program, CaptionOf(regedit.Window()), regedit.Window());
  EXPECT_TRUE(program.TopPane().TextBecomes(regedit.Window().Text()));
  EXPECT_NE(regedit.Window().Text(), "");
  SaveScreenshotWhenPainted("regedit");
}

TEST_F(RealProgramsTest, WineConfiguration) {
  const WineProgram winecfg("winecfg.exe", "", "#32770");
  winecfg.MoveTo(30, 30, 0, 0);
  const Program program;
  program.StartCapture();
  ExpectReport(program, CaptionOf(winecfg.Window()), winecfg.Window());
  EXPECT_TRUE(program.TopPane().TextBecomes(winecfg.Window().Text()));
  EXPECT_NE(winecfg.Window().Text(), "");

  const Control tabs = winecfg.Inside("SysTabControl32");
  const RECT row = tabs.Rectangle();
  ExpectReport(program, {row.left + 30, row.top + 12}, tabs);
  ExpectPanes(program, tabs.Text(), ItemsOf(tabs));
  const std::string captions = program.BottomPane().Text();
  EXPECT_EQ(std::count(captions.begin(), captions.end(), '\n'), 7);

  // Every part of the first page that can be pointed at in its middle.
  int parts = 0;
  for (HWND window : Descendants(winecfg.Window().Handle())) {
    const Control part(window, "a part of the page");
    const bool framesOthers =
        part.ClassName() == "Button" && (part.Style() & BS_TYPEMASK) == BS_GROUPBOX;
    if (!part.IsVisible() || WindowFromPoint(part.Center()) != window || framesOthers) continue;
    ExpectReport(program, part.Center(), part);
    ExpectPanes(program, part.Text(), part.Text());
    ++parts;
  }
  EXPECT_GE(parts, 2);
  SaveScreenshotWhenPainted("winecfg");
}

}  // namespace
}  // namespace gui
