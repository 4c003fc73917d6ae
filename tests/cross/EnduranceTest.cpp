// Many readings of controls that do not behave leave nothing behind in this process.
#include <windows.h>

#include <gtest/gtest.h>
#include <psapi.h>
#include <winternl.h>

#include <cstdint>
#include <cstdio>
#include <vector>

#include "ListFixture.h"
#include "Reading.h"

namespace cross {
namespace {

// The counters for handles that the system offers are 0 in Wine; its list of all handles is true.
int CountHandles() {
  struct Entry {
    std::uint16_t process;
    std::uint16_t rest[7];
  };
  static_assert(sizeof(Entry) == 16);
  constexpr int kHandleInformation = 16;
  std::vector<std::uint32_t> buffer(1U << 20);
  if (NtQuerySystemInformation(static_cast<SYSTEM_INFORMATION_CLASS>(kHandleInformation),
                               buffer.data(), static_cast<ULONG>(buffer.size() * 4),
                               nullptr) != 0) {
    return -1;
  }
  const auto* entries = reinterpret_cast<const Entry*>(buffer.data() + 1);
  int count = 0;
  for (std::uint32_t i = 0; i < buffer[0]; ++i) {
    if (entries[i].process == static_cast<std::uint16_t>(GetCurrentProcessId())) ++count;
  }
  return count;
}

double UsedMegabytes() {
  PROCESS_MEMORY_COUNTERS counters = {};
  K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
  return static_cast<double>(counters.PagefileUsage) / (1 << 20);
}

// Five readings of the first fixture, and one of a program that dies of it.
int ReadAll(const ListFixture& lying, bool withADeath) {
  constexpr const char* kKinds[] = {"listbox", "dropdown", "listview", "toolbar", "tabs"};
  int readings = 0;
  for (const char* kind : kKinds) {
    Read(kind, lying[kind],
         {.stays = [](int yields) { return yields < 20; }, .as32BitSystem = true});
    ++readings;
  }
  if (withADeath) {
    const ListFixture dying(Bits::k32, "behave=die ownerdata=many:5");
    Read("ownerdata", dying["ownerdata"], {.as32BitSystem = true});
    ++readings;
  }
  return readings;
}

// The text that is far longer than announced is left out here: Wine itself loses its copy of it
// when it runs into the end of the buffer.
TEST(EnduranceTest, FiveHundredReadingsLeaveNothingBehind) {
  const ListFixture lying(Bits::k32,
                          "behave=understate listbox=long behave=negative dropdown=many:5 "
                          "behave=change listview=many:3 toolbar=many:3 tabs=many:3 "
                          "behave=hang dropdownlist=many:5 behave=vanish simplecombo=many:5");
  Read("dropdownlist", lying["dropdownlist"]);
  Read("simplecombo", lying["simplecombo"]);
  for (int i = 0; i < 5; ++i) ReadAll(lying, true);

  const int handles = CountHandles();
  const double megabytes = UsedMegabytes();
  ASSERT_GT(handles, 0);
  int readings = 0;
  for (int i = 0; readings < 500; ++i) readings += ReadAll(lying, i % 5 == 0);
  std::printf("%d readings | handles %d, then %d | %.1f MB, then %.1f MB\n", readings, handles,
              CountHandles(), megabytes, UsedMegabytes());
  EXPECT_LE(CountHandles(), handles);
  EXPECT_LE(UsedMegabytes(), megabytes + 1);
}

}  // namespace
}  // namespace cross
