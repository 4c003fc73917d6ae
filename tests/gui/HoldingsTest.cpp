// The counts see what is acquired and released, in this process and in another one.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <vector>

#include "bed/Needs.h"
#include "driver/Holdings.h"
#include "driver/Owners.h"
#include "driver/Target.h"

namespace gui {
namespace {

TEST(HoldingsTest, SeesEveryHandle) {
  NEEDS(bed::CountersOfWine());
  const int before = OwnHoldings().handles;
  std::vector<OwnedHandle> mutexes;
  for (int i = 0; i < 7; ++i) mutexes.emplace_back(CreateMutexW(nullptr, FALSE, nullptr));
  EXPECT_EQ(OwnHoldings().handles, before + 7);
  mutexes.clear();
  EXPECT_EQ(OwnHoldings().handles, before);
}

TEST(HoldingsTest, CountsEventsApart) {
  NEEDS(bed::CountersOfWine());
  const Holdings before = OwnHoldings();
  const OwnedHandle event(CreateEventW(nullptr, FALSE, FALSE, nullptr));
  EXPECT_EQ(OwnHoldings().events, before.events + 1);
  EXPECT_EQ(OwnHoldings().handles, before.handles);
}

TEST(HoldingsTest, SeesEveryGdiObject) {
  NEEDS(bed::CountersOfWine());
  const int before = OwnHoldings().gdiObjects;
  {
    const std::unique_ptr<void, DeleteObjectCall> brush(CreateSolidBrush(RGB(1, 2, 3)));
    const std::unique_ptr<void, DeleteObjectCall> pen(CreatePen(PS_SOLID, 2, RGB(1, 2, 3)));
    EXPECT_EQ(OwnHoldings().gdiObjects, before + 2);
  }
  EXPECT_EQ(OwnHoldings().gdiObjects, before);
}

TEST(HoldingsTest, SeesWindowsOfEveryKind) {
  const auto make = [](HWND parent, DWORD style) {
    return CreateWindowExW(0, L"STATIC", L"", style, 0, 0, 9, 9, parent, nullptr, nullptr, nullptr);
  };
  // With the first ones the system creates windows of its own.
  HWND firstTop = make(nullptr, WS_POPUP);
  HWND firstForMessages = make(HWND_MESSAGE, 0);
  const int before = OwnHoldings().windows;
  HWND top = make(nullptr, WS_POPUP);
  make(make(top, WS_CHILD), WS_CHILD);
  HWND forMessages = make(HWND_MESSAGE, 0);
  EXPECT_EQ(OwnHoldings().windows, before + 4);
  DestroyWindow(top);
  DestroyWindow(forMessages);
  EXPECT_EQ(OwnHoldings().windows, before);
  DestroyWindow(firstTop);
  DestroyWindow(firstForMessages);
}

TEST(HoldingsTest, SeesWrittenMemory) {
  constexpr std::size_t kSize = 8U << 20U;
  const double before = OwnHoldings().megabytes;
  void* const block = VirtualAlloc(nullptr, kSize, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
  std::memset(block, 1, kSize);
  EXPECT_NEAR(OwnHoldings().megabytes, before + 8, 1);
  VirtualFree(block, 0, MEM_RELEASE);
  EXPECT_NEAR(OwnHoldings().megabytes, before, 1);
}

TEST(HoldingsTest, SeesAnotherProcess) {
  NEEDS(bed::CountersOfWine());
  Fixture few("title=few");
  Fixture many("title=many edit=a button=b memo=c static=d");
  const Holdings less = HoldingsOf(few.Process().Handle());
  const Holdings more = HoldingsOf(many.Process().Handle());
  EXPECT_GT(less.handles, 5);
  EXPECT_GT(less.gdiObjects, 5);
  EXPECT_GT(less.megabytes, 0.5);
  EXPECT_EQ(more.windows, less.windows + 4);
}

TEST(HoldingsTest, WithinIsNoMoreThanAllowed) {
  const Holdings before{10, 5, 20, 30, 40};
  const Allowance none{0, 0, 0, 0, 0};
  EXPECT_TRUE(IsWithin(before, before, none));
  EXPECT_TRUE(IsWithin(before, {9, 4, 19, 29, 39}, none));
  EXPECT_FALSE(IsWithin(before, {11, 5, 20, 30, 40}, none));
  EXPECT_FALSE(IsWithin(before, {10, 6, 20, 30, 40}, none));
  EXPECT_FALSE(IsWithin(before, {10, 5, 21, 30, 40}, none));
  EXPECT_FALSE(IsWithin(before, {10, 5, 20, 31, 40}, none));
  EXPECT_FALSE(IsWithin(before, {10, 5, 20, 30, 40.1}, none));
  EXPECT_TRUE(IsWithin(before, {11, 6, 21, 31, 41}, {1, 1, 1, 1, 1}));
}

}  // namespace
}  // namespace gui
