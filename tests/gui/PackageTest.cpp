// The package as users have it: unpacked somewhere, used, with its settings kept or not.
#include <windows.h>

#include <shlwapi.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

#include "DialogWindow.h"
#include "SettingsText.h"
#include "driver/GuiTest.h"
#include "driver/Paths.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Target.h"
#include "driver/Text.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

std::set<std::string> NamesIn(const std::filesystem::path& folder) {
  std::set<std::string> names;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    names.insert(ToUtf8(entry.path().lexically_relative(folder).generic_wstring()));
  }
  return names;
}

class PackageTest : public GuiTest {
 protected:
  // Reads two windows and changes a setting, as every new user does.
  static void Use(const Program& program) {
    const Fixture fixture("title=t static=名札 edit=文");
    program.StartCapture();
    for (const auto& [kind, text] : {std::pair{"static", "名札"}, std::pair{"edit", "文"}}) {
      pointer::MoveTo(fixture[kind].Center());
      ASSERT_TRUE(program[ui::txthWnd].TextBecomes(fixture[kind].HandleText()));
      ASSERT_TRUE(program.TopPane().TextBecomes(text));
    }
    program.StopCapture();

    const DialogWindow dialog = OpenSettings(program);
    dialog[ui::chkTreeViewIndent].Click();
    ASSERT_TRUE(WaitFor("the setting is changed",
                        [&](std::string&) { return !dialog[ui::chkTreeViewIndent].IsChecked(); }));
    dialog.Close();
    ASSERT_TRUE(dialog.Closes());
  }
};

TEST_F(PackageTest, WorksInAFolderWithBlanksAndJapaneseCharacters) {
  Program program;
  ASSERT_THAT(ToUtf8(program.Folder().wstring()), testing::HasSubstr("列取得 の 試験"));
  const std::set<std::string> unpacked = {
      "Readme.txt",  "Velmora.exe",          "VelmoraText.exe", "help",
      "help/images", "help/images/main.png", "help/index.html", "help/style.css"};
  ASSERT_EQ(NamesIn(program.Folder()), unpacked);

  Use(program);
  ASSERT_EQ(program.CloseAndWait(), 0U);
  EXPECT_EQ(ValueOf(program.ConfLines(), "treeview indent"), "0");
  std::set<std::string> used = unpacked;
  used.insert("Conf.txt");
  EXPECT_EQ(NamesIn(program.Folder()), used);

  Program again({.folder = program.Folder()});
  EXPECT_FALSE(OpenSettings(again)[ui::chkTreeViewIndent].IsChecked());
}

// Windows searches a program to start first in the folder of the one that starts it.
TEST_F(PackageTest, HelpLinkOpensThePageBesideTheProgram) {
  const Program program;
  std::filesystem::copy_file(CommandRecorderFile(), program.Folder() / "explorer.exe");
  program[ui::Help_Url].Click();
  std::string line;
  ASSERT_TRUE(WaitFor("the explorer is started", [&](std::string&) {
    std::ifstream in(program.Folder() / "command.txt");
    return std::getline(in, line) && !in.eof();
  }));
  // One word, because a blank would end it.
  std::string explorer;
  std::string address;
  std::string rest;
  std::istringstream(line) >> explorer >> address >> rest;
  EXPECT_EQ(explorer, "explorer.exe");
  EXPECT_EQ(rest, "");
  wchar_t page[MAX_PATH] = {};
  DWORD length = MAX_PATH;
  ASSERT_EQ(PathCreateFromUrlW(ToWide(address).c_str(), page, &length, 0), S_OK);
  EXPECT_EQ(page, program.Folder() / "help" / "index.html");
  EXPECT_TRUE(std::filesystem::exists(page));
}

// A folder in the file's place rejects reading and writing like a read-only medium, with the same
// error. Permissions would not work: an administrator may write anyway.
TEST_F(PackageTest, WorksWhereItsSettingsCannotBeKept) {
  const std::filesystem::path folder = FreshFolder();
  const std::filesystem::path conf = folder / "Conf.txt";
  CopyPackageTo(folder);
  std::filesystem::create_directory(conf);
  ASSERT_EQ(CreateFileW(conf.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr),
            INVALID_HANDLE_VALUE);
  ASSERT_EQ(GetLastError(), DWORD{ERROR_ACCESS_DENIED});
  const std::set<std::string> before = NamesIn(folder);
  {
    Program program({.folder = folder});
    Use(program);
    EXPECT_EQ(program.CloseAndWait(), 0U);
  }
  EXPECT_EQ(NamesIn(folder), before);

  Program again({.folder = folder});
  EXPECT_TRUE(OpenSettings(again)[ui::chkTreeViewIndent].IsChecked());
}

}  // namespace
}  // namespace gui
