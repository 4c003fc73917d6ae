// The real program over the installer: its panes hold what installer.nsi says.
#include <windows.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "ListFixture.h"
#include "Pointing.h"
#include "Programs.h"
#include "bed/Needs.h"
#include "driver/Control.h"
#include "driver/GuiTest.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Text.h"
#include "driver/WaitFor.h"
#include "ui/ControlIds.h"

namespace corpus {
namespace {

constexpr char kConf[] =
    "form left = 660\nform top = 40\nform right = 1240\nform bottom = 900\nread whole = 1\n";

std::vector<cross::Bits> BitsOfThisSystem() {
  if (bed::Is64BitSystem()) return {cross::Bits::k32, cross::Bits::k64};
  return {cross::Bits::k32};
}

class InstallerTest : public testing::WithParamInterface<cross::Bits>, public gui::GuiTest {
 protected:
  // Opens the installer at that page, and points the program at its window of that class.
  void PointAtPage(const char* page, std::string_view className) {
    for (const ProgramCase& one : ProgramsOfThisSystem()) {
      if (one.file.empty() && one.arguments == page && one.bits == GetParam()) {
        installer_ = std::make_unique<RunningProgram>(one);
      }
    }
    SetWindowPos(installer_->Windows().front(), HWND_TOP, 20, 20, 0, 0,
                 SWP_NOSIZE | SWP_NOACTIVATE);
    program_ = std::make_unique<gui::Program>(
        gui::ProgramStart{.conf = kConf, .folder = installer_->Folder() / "Velmora"});
    program_->StartCapture();
    for (HWND window : installer_->Windows()) {
      const gui::Control control(window, "");
      if (control.ClassName() != className) continue;
      const Pointed pointed = PointAt(window);
      ASSERT_TRUE(pointed.point);
      gui::pointer::MoveTo(pointed.point->at);
      ASSERT_TRUE((*program_)[ui::txthWnd].TextBecomes(control.HandleText()));
      return;
    }
    FAIL() << "no " << className;
  }

  const gui::Program& Program() const { return *program_; }

 private:
  std::unique_ptr<RunningProgram> installer_;
  std::unique_ptr<gui::Program> program_;
};

TEST_P(InstallerTest, TheTermsAreReadToTheirEnd) {
  ASSERT_NO_FATAL_FAILURE(PointAtPage("licence", "RichEdit20W"));
  // The top pane has the name of the accessible object, which in Wine is the start of the text.
  EXPECT_TRUE(Program().BottomPane().TextBecomes(gui::ToUtf8(Licence())));
  EXPECT_TRUE(Program()[ui::lblMsg].TextBecomes(""));
}

TEST_P(InstallerTest, TheComponentsAreReadWithTheirLevels) {
  ASSERT_NO_FATAL_FAILURE(PointAtPage("components", "SysTreeView32"));
  EXPECT_TRUE(Program().BottomPane().TextBecomes(
      "本体 && 資料\r\n\tプログラム本体\r\n\t言語\r\n\t\t日本語\r\n\t\tEnglish\r\n"
      "\t\t一行に収まらないほど長い名前を持つ構成要素で、五十文字を越えているため、設定によっては途"
      "中までしか読.......\r\n"
      "\tHelp & samples\r\nショートカット\r\n"));
}

TEST_P(InstallerTest, TheLogIsReadFromTheFirstToTheLastLine) {
  ASSERT_NO_FATAL_FAILURE(PointAtPage("log", "SysListView32"));
  std::string log;
  for (int i = 1; i <= 100; ++i) {
    const std::string number = std::to_string(i);
    log += "手順 " + number + ": C:\\試験\\ファイル " + number +
           ".txt は書き込みません, so nothing happens\r\n";
  }
  EXPECT_TRUE(Program().BottomPane().TextBecomes(log + "完了\r\n"));
}

INSTANTIATE_TEST_SUITE_P(Kinds, InstallerTest, testing::ValuesIn(BitsOfThisSystem()),
                         [](const auto& test) {
                           return test.param == cross::Bits::k64 ? "For64Bits" : "For32Bits";
                         });

}  // namespace
}  // namespace corpus
