// Many readings of misbehaving controls leave nothing behind in this process.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstdio>

#include "ListFixture.h"
#include "Reading.h"
#include "bed/Needs.h"
#include "driver/Holdings.h"

namespace cross {
namespace {

// Five readings of the first fixture, and one each of controls that hang for a moment, vanish and
// take their program with them.
int ReadAll(const ListFixture& lying, bool withAnEnd) {
  int readings = 0;
  const auto read = [&](const ListFixture& fixture, const char* kind) {
    Read(kind, fixture[kind],
         {.stays = [](int yields) { return yields < 20; }, .as32BitSystem = true});
    ++readings;
  };
  for (const char* kind : {"listbox", "dropdown", "listview", "toolbar", "tabs"}) read(lying, kind);
  if (withAnEnd) {
    const ListFixture ending(Bits::k32,
                             "behave=pause dropdownlist=many:5 behave=vanish simplecombo=many:5 "
                             "behave=die ownerdata=many:5");
    for (const char* kind : {"dropdownlist", "simplecombo", "ownerdata"}) read(ending, kind);
  }
  return readings;
}

// Without the text that is far longer than announced: Wine itself leaks its copy of it when it
// reaches the end of the buffer.
TEST(EnduranceTest, FiveHundredReadingsLeaveNothingBehind) {
  NEEDS(bed::CountersOfWine());
  const ListFixture lying(Bits::k32,
                          "behave=understate listbox=long behave=negative dropdown=many:5 "
                          "behave=change listview=many:3 toolbar=many:3 tabs=many:3");
  for (int i = 0; i < 3; ++i) ReadAll(lying, true);

  const gui::Holdings before = gui::OwnHoldings();
  ASSERT_GT(before.handles, 0);
  // They are counted in a table that a 32-bit program of a 64-bit system does not see.
  if (!bed::Is64BitSystem()) {
    ASSERT_GT(before.gdiObjects, 0);
  }
  int readings = 0;
  for (int i = 0; readings < 500; ++i) readings += ReadAll(lying, i % 10 == 0);
  const gui::Holdings after = gui::OwnHoldings();
  std::printf("%d readings | before: %s | after: %s\n", readings, before.Text().c_str(),
              after.Text().c_str());
  EXPECT_TRUE(IsWithin(before, after, {.megabytes = 1}));
}

}  // namespace
}  // namespace cross
