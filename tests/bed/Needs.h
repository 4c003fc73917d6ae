// What a test needs of the system that it runs on. Where that is missing the test is skipped, with
// the reason; in the test bed, which has it, the test fails, so that nothing is skipped there.
//
//   TEST(AnyTest, Name) {
//     NEEDS(bed::CodePage932());
#pragma once

#include <gtest/gtest.h>

namespace bed {

struct Need {
  bool isMet;
  const char* reason;
  // Not so for the bitness: ctest selects the tests for each.
  bool isMetByTheBed = true;
};

// Facts about the system.
bool OnWine();
bool Is64BitSystem();
bool IsTestBed();

Need System32();
Need System64();
Need CodePage932();

// Wine's own programs, accessible objects of its controls, and counters of handles and objects.
Need ProgramsOfWine();
Need ObjectsOfWine();
Need CountersOfWine();
// Another resolution holds for the next program that starts.
Need ResolutionAtOnce();
// Nothing but the tested program writes to the system drive and the registry.
Need QuietSystem();

// What the user of this system allows.
Need ThePointer();
Need ScreenForAllWindows();
// Files of the program's over-long texts on the desktop are the user's.
Need DesktopWithoutSavedTexts();

}  // namespace bed

#define NEEDS(need)                                           \
  if (const bed::Need needed = (need); needed.isMet) {        \
  } else if (needed.isMetByTheBed && bed::IsTestBed()) {      \
    FAIL() << "The test bed must have it: " << needed.reason; \
  } else                                                      \
    GTEST_SKIP() << needed.reason
