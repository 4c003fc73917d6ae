// The program for scripts over the lists of programs that nobody here wrote: the items of its JSON
// are those that the tests read themselves.
#include <windows.h>

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>

#include "Programs.h"
#include "RegistryContents.h"
#include "WindowTexts.h"
#include "console/TextProgram.h"
#include "driver/Control.h"
#include "driver/GuiTest.h"
#include "driver/Text.h"
#include "driver/WaitFor.h"

namespace corpus {
namespace {

// Rows are lines, cells are separated by TAB.
std::string RowsOf(const std::string& json) {
  std::string text;
  const nlohmann::json parsed = nlohmann::json::parse(json);
  if (!parsed["items"].is_object()) return text;
  for (const nlohmann::json& row : parsed["items"]["rows"]) {
    std::string line;
    for (const nlohmann::json& cell : row) {
      line += (&cell == &row.front() ? "" : "\t") + cell.get<std::string>();
    }
    text += line + "\r\n";
  }
  return text;
}

class CommandLineTest : public testing::WithParamInterface<ProgramCase>, public gui::GuiTest {
 private:
  RegistryContents contents_;
};

TEST_P(CommandLineTest, TheItemsAreThoseOfTheControl) {
  const RunningProgram program(GetParam());
  for (HWND window : program.Windows()) {
    if (TextsOf(window).items.empty()) continue;
    // A list may change between two readings, as that of the running processes does.
    EXPECT_TRUE(gui::WaitFor("both readings agree", [&](std::string& seen) {
      const std::string ours =
          RowsOf(console::RunText(console::OfWindow(window) + " --json").output);
      const std::string held = gui::ToUtf8(TextsOf(window).items);
      seen = ours.substr(0, 300) + "\nbut the control holds\n" + held.substr(0, 300);
      return ours == held;
    })) << gui::Control(window, "").ClassName();
  }
}

INSTANTIATE_TEST_SUITE_P(Programs, CommandLineTest, testing::ValuesIn(ProgramsOfThisSystem()),
                         [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace corpus
