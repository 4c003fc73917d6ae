// What a whole run of the program leaves behind, and what it loads.
#include <windows.h>

#include <shlobj.h>
#include <tlhelp32.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>

#include "DialogWindow.h"
#include "Footprint.h"
#include "accessible/FixtureProcess.h"
#include "bed/Needs.h"
#include "driver/GuiTest.h"
#include "driver/Owners.h"
#include "driver/Paths.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Target.h"
#include "driver/Text.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

// Over-long texts of either pane are saved there, on the desktop.
constexpr const wchar_t* kOverflowFile = L"文字数オーバー上段(Velmora).txt";
constexpr const char* kNetworkLibraries[] = {"ws2_32.dll",  "wsock32.dll",    "mswsock.dll",
                                             "wininet.dll", "winhttp.dll",    "urlmon.dll",
                                             "dnsapi.dll",  "webservices.dll"};
// Wine records there which settings of the user any program has read.
constexpr const char* kAskedSettings = "\\Software\\Wine\\Temporary System Parameters";
constexpr std::uintmax_t kOverLong = 65535;

std::filesystem::path Desktop() {
  wchar_t path[MAX_PATH] = {};
  SHGetFolderPathW(nullptr, CSIDL_DESKTOPDIRECTORY, nullptr, SHGFP_TYPE_CURRENT, path);
  return path;
}

std::set<std::string> LibrariesOf(DWORD processId) {
  const OwnedHandle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, processId));
  MODULEENTRY32W entry = {};
  entry.dwSize = sizeof entry;
  std::set<std::string> libraries;
  for (BOOL more = Module32FirstW(snapshot.get(), &entry); more;
       more = Module32NextW(snapshot.get(), &entry)) {
    std::string name = ToUtf8(entry.szModule);
    std::ranges::transform(name, name.begin(), [](char c) {
      return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    libraries.insert(name);
  }
  return libraries;
}

class FootprintTest : public GuiTest {
 protected:
  void SetUp() override {
    NEEDS(bed::DesktopWithoutSavedTexts());
    GuiTest::SetUp();
    std::filesystem::remove(OverflowFile());
  }
  void TearDown() override {
    if (!IsSkipped()) std::filesystem::remove(OverflowFile());
    GuiTest::TearDown();
  }

  static std::filesystem::path OverflowFile() { return Desktop() / kOverflowFile; }

  // What the program reads during its run: a caption, an over-long list and an accessible object.
  struct Targets {
    Fixture fixture{"title=t static=名札 list=1700"};
    accessible::FixtureProcess object{"title=o place=600,40,200,200 tree"};
  };

  static void Live(const Program& program, const Targets& targets) {
    program.StartCapture();
    pointer::MoveTo(targets.fixture["static"].Center());
    Require(program.TopPane().TextBecomes("名札"));
    pointer::MoveTo(targets.fixture["list"].Center());
    Require(WaitFor("the list is cut", [&](std::string& seen) {
      seen = program.BottomPane().Text();
      return seen.find("文字数オーバー") != std::string::npos;
    }));
    program[ui::chkDetail].PressButton();
    pointer::MoveTo(targets.object.Control().Center());
    Require(program[ui::txthWnd].TextBecomes(targets.object.Control().HandleText()));
    Require(WaitFor("the object is reported", [&](std::string& seen) {
      seen = program.TopPane().Text();
      return seen.find("Children") != std::string::npos;
    }));
    program.StopCapture();

    const DialogWindow dialog = OpenSettings(program);
    dialog[ui::chkTreeViewIndent].Click();
    dialog[ui::lblButton0 + 3].Click();
    dialog.Close();
    Require(dialog.Closes());
  }
};

TEST_F(FootprintTest, NothingIsWrittenButTheSettingsAndTheOverflowFile) {
  NEEDS(bed::QuietSystem());
  const std::filesystem::path folder = FreshFolder();
  CopyPackageTo(folder);
  const Footprint before = Footprint::Now(folder);
  ASSERT_GT(before.Files(), 500U);
  ASSERT_GT(before.Keys(), 5000U);
  // What Windows itself writes meanwhile, and when programs that only show a window come and go.
  { const Targets targets; }
  const Footprint between = Footprint::Now(folder);
  const std::set<std::string> tolerated = between.ChangesSince(before);
  EXPECT_LT(tolerated.size(), 10U);

  {
    const Targets targets;
    Program program({.conf = "to file = 1\n", .folder = folder});
    Live(program, targets);
    ASSERT_EQ(program.CloseAndWait(), 0U);
  }
  ASSERT_TRUE(std::filesystem::exists(OverflowFile()));
  EXPECT_GT(std::filesystem::file_size(OverflowFile()), kOverLong);
  std::set<std::string> changes = Footprint::Now(folder).ChangesSince(between);
  std::erase_if(changes, [&](const std::string& path) {
    return tolerated.contains(path) || path.find(kAskedSettings) != std::string::npos;
  });
  const std::set<std::string> expected = {ToUtf8(Desktop().wstring()),
                                          ToUtf8(OverflowFile().wstring()),
                                          ToUtf8((folder / "Conf.txt").wstring())};
  EXPECT_EQ(changes, expected);
}

TEST_F(FootprintTest, NothingForTheNetworkIsLoaded) {
  const Targets targets;
  const Program program;
  Live(program, targets);
  const std::set<std::string> libraries = LibrariesOf(program.Process().Id());
  ASSERT_TRUE(libraries.contains("user32.dll"));
  for (const char* name : kNetworkLibraries) EXPECT_FALSE(libraries.contains(name)) << name;
}

}  // namespace
}  // namespace gui
