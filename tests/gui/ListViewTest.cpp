// The list view of another program, as a capture shows it: its rows on a 32-bit system, the
// children of its accessible object on a 64-bit one.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "ListFixture.h"
#include "accessible/FixtureProcess.h"
#include "bed/Needs.h"
#include "driver/GuiTest.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Text.h"
#include "fixture/Contents.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

class ListViewTest : public GuiTest {
 protected:
  static void ExpectList(cross::Bits bits, const std::string& set, const std::string& conf,
                         const std::string& expected) {
    const cross::ListFixture fixture(bits, "place=40,40,400,300 listview=" + set);
    const Control list(fixture["listview"], "the list view");
    // The name of its accessible object, which is read after the list.
    list.SetText("終");
    const Program program({.conf = conf});
    program.MoveWindowTo(460, 20, 600, 700);
    program.StartCapture();
    pointer::MoveTo(list.Center());
    Require(program[ui::txtWin2].TextBecomes("終"));
    EXPECT_EQ(program[ui::txthWnd].Text(), list.HandleText());
    EXPECT_EQ(program.BottomPane().Text(), expected);
  }
};

// What a text of the set "odd" is between commas. Its own tabs and line ends part cells and rows.
constexpr const char* kBetweenCommas[] = {
    "a,b", "\"a,b\"", "\"\"\"q\"\"\"", "line\r\nbreak",     "\"lf\nonly\"",
    " ",   "",        nullptr,         "\"\\/:*?\"\"<>|\"", "&Menu",
};
// The system code page lacks most of it.
constexpr char kForeign[] = "cat \U0001F408 ไทย ü";

using ListView32BitSystemTest = ListViewTest;

TEST_F(ListView32BitSystemTest, CellsAreSeparatedByCommasAndQuoted) {
  NEEDS(bed::System32());
  std::string csv;
  const int rows = static_cast<int>(std::size(kBetweenCommas));
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < cross::kColumns; ++column) {
      const char* const cell = kBetweenCommas[(row + column) % rows];
      if (column > 0) csv += ",";
      csv += cell != nullptr ? cell : FromCodePage(ToCodePage(kForeign));
    }
    csv += "\r\n";
  }
  ExpectList(cross::Bits::k32, "odd", "listview col = 1\n", csv + "\r\n");
}

TEST_F(ListView32BitSystemTest, TheFirstColumnAloneHasNoSeparators) {
  NEEDS(bed::CodePage932());
  NEEDS(bed::System32());
  ExpectList(cross::Bits::k32, "japanese", "listview col = 2\n",
             "吾輩は猫である\r\n名前はまだ無い。\r\nｶﾀｶﾅ 表示ソ能ポ\r\n①㈱髙\r\n");
}

using ListView64BitSystemTest = ListViewTest;

TEST_F(ListView64BitSystemTest, TheItemsOfItsAccessibleObjectAreListed) {
  NEEDS(bed::System64());
  const accessible::FixtureProcess fixture("place=40,40,300,200 rows=3");
  const Program program;
  program.MoveWindowTo(460, 20, 600, 700);
  program.StartCapture();
  pointer::MoveTo(fixture.Control().Center());
  EXPECT_TRUE(program.BottomPane().TextBecomes("行1\r\n行2\r\n行3\r\n"));
}

TEST_F(ListView64BitSystemTest, NamesOfItemsAreQuotedBetweenCommas) {
  NEEDS(bed::System64());
  const accessible::FixtureProcess fixture("place=40,40,300,200 commas");
  const Program program({.conf = "listview col = 1\n"});
  program.MoveWindowTo(460, 20, 600, 700);
  program.StartCapture();
  pointer::MoveTo(fixture.Control().Center());
  EXPECT_TRUE(
      program.BottomPane().TextBecomes("林檎,蜜柑\r\n\"赤,橙\"\r\n\"\"\"果物\"\"\"\r\n\r\n"));
}

// Those of Wine have an object without children, so their rows are read by messages.
TEST_F(ListView64BitSystemTest, RowsAreReadWhateverTheBitsOfItsProgram) {
  NEEDS(bed::CodePage932());
  NEEDS(bed::System64());
  NEEDS(bed::ObjectsOfWine());
  const std::string texts[] = {"吾輩は猫である", "名前はまだ無い。", "ｶﾀｶﾅ 表示ソ能ポ", "①㈱髙"};
  std::string rows;
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < cross::kColumns; ++column) {
      rows += (column > 0 ? "\t" : "") + texts[(row + column) % 4];
    }
    rows += "\r\n";
  }
  for (const cross::Bits bits : {cross::Bits::k32, cross::Bits::k64}) {
    ExpectList(bits, "japanese", "listview col = 0\n", rows);
  }
}

}  // namespace
}  // namespace gui
