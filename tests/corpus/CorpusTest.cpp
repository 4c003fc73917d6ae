// Every window of programs that nobody here wrote: what a report shows of it is what it holds, or
// there is a reason that can be checked.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <set>
#include <string>

#include "OtherReading.h"
#include "Programs.h"
#include "Reading.h"
#include "RegistryContents.h"
#include "Summary.h"
#include "Verdict.h"
#include "driver/Control.h"
#include "driver/GuiTest.h"
#include "driver/Text.h"

namespace corpus {
namespace {

class CorpusTest : public testing::WithParamInterface<ProgramCase>, public gui::GuiTest {
 private:
  RegistryContents contents_;
};

std::string TextShown(const WindowTexts& texts) {
  return cross::Shown(texts.items.empty() ? texts.caption : texts.items);
}

void ExpectRead(const ProgramCase& program, HWND window) {
  EXPECT_EQ(cross::IsIn64BitProcess(window), program.bits == cross::Bits::k64);
  const std::string className = gui::Control(window, "").ClassName();
  const Verdict verdict = Judge(window);
  Count(verdict.outcome);
  std::printf("corpus | %-21s | %-22s | %-17s | %-25s | %s\n", program.name.c_str(),
              className.c_str(), NameOf(verdict.outcome), gui::ToUtf8(verdict.way).c_str(),
              TextShown(verdict.texts).c_str());
  EXPECT_NE(verdict.outcome, Outcome::kUnread) << className << "\n" << verdict.missing;
}

TEST_P(CorpusTest, NothingUnderThePointerStaysUnread) {
  const ProgramCase& one = GetParam();
  const RunningProgram program(one);
  std::set<HWND> seen;
  for (int page = 0; page < program.Pages(); ++page) {
    if (page > 0) program.ShowPage(page);
    for (HWND window : program.Windows()) {
      if (seen.insert(window).second) ExpectRead(one, window);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Programs, CorpusTest, testing::ValuesIn(ProgramsOfThisSystem()),
                         [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace corpus
