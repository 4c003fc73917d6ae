#include "capture/PointerSampling.h"

#include <gtest/gtest.h>

#include "FakeCapture.h"

namespace capture {
namespace {

class PointerSamplingTest : public testing::Test {
 protected:
  PointerSamplingTest() {
    fake_.state.CaptureRunning = true;
    fake_.system.cursor = {300, 40};
    fake_.system.windowAtPoint = WindowNumber(77);
  }
  void Sample() { SamplePointer(fake_.Context()); }
  std::wstring Shown() { return fake_.view.texts[ViewText::lblMousePos]; }

  FakeCapture fake_;
};

TEST_F(PointerSamplingTest, NotesThePointAndItsWindow) {
  Sample();
  EXPECT_EQ(fake_.state.CapturePoint.x, 300);
  EXPECT_EQ(fake_.state.CapturePoint.y, 40);
  EXPECT_EQ(fake_.state.TargetWindow, WindowNumber(77));
  EXPECT_EQ(Shown(), L" 300- 40");
}

TEST_F(PointerSamplingTest, ReadsBesideThePointerWhenShifted) {
  fake_.settings.shift = 1;
  fake_.settings.shiftx = -25;
  fake_.settings.shifty = 8;
  Sample();
  EXPECT_EQ(fake_.state.CapturePoint.x, 275);
  EXPECT_EQ(fake_.state.CapturePoint.y, 48);
  EXPECT_EQ(fake_.system.askedAt.x, 275);
  EXPECT_EQ(fake_.system.askedAt.y, 48);
  // The position of the pointer itself is shown.
  EXPECT_EQ(Shown(), L" 300- 40");
}

TEST_F(PointerSamplingTest, OnlyOneMeansShifted) {
  fake_.settings.shift = 2;
  Sample();
  EXPECT_EQ(fake_.state.CapturePoint.x, 300);
}

TEST_F(PointerSamplingTest, AnAbsurdShiftEndsAtTheLimit) {
  fake_.settings.shift = 1;
  fake_.settings.shiftx = 2147483647;
  fake_.settings.shifty = -2147483647 - 1;
  fake_.system.cursor = {10, -10};
  Sample();
  EXPECT_EQ(fake_.state.CapturePoint.x, 2147483647);
  EXPECT_EQ(fake_.state.CapturePoint.y, -2147483647 - 1);
}

TEST_F(PointerSamplingTest, ClientMeansTheParentsClientArea) {
  fake_.settings.mousPos = L"client";
  fake_.system.parents[WindowNumber(77)] = WindowNumber(70);
  fake_.system.clientOrigin = {290, 33};
  Sample();
  EXPECT_EQ(fake_.system.clientOf, WindowNumber(70));
  EXPECT_EQ(Shown(), L"  10-  7");
}

TEST_F(PointerSamplingTest, WithoutAParentTheScreenCounts) {
  fake_.settings.mousPos = L"client";
  Sample();
  EXPECT_EQ(Shown(), L" 300- 40");
}

TEST_F(PointerSamplingTest, AnyOtherWordMeansTheScreen) {
  fake_.settings.mousPos = L"Client";
  fake_.system.parents[WindowNumber(77)] = WindowNumber(70);
  fake_.system.clientOrigin = {290, 33};
  Sample();
  EXPECT_EQ(Shown(), L" 300- 40");
}

TEST_F(PointerSamplingTest, WithoutACaptureThereIsNoTarget) {
  fake_.state.CaptureRunning = false;
  fake_.state.TargetWindow = WindowNumber(5);
  Sample();
  EXPECT_EQ(fake_.state.TargetWindow, nullptr);
  EXPECT_EQ(fake_.state.CapturePoint.x, 0);
  EXPECT_TRUE(fake_.view.texts.empty());
}

TEST_F(PointerSamplingTest, TheWindowThatIsMeantIsTheTarget) {
  fake_.system.windowMeant = WindowNumber(78);
  Sample();
  EXPECT_EQ(fake_.state.TargetWindow, WindowNumber(78));
  EXPECT_EQ(fake_.state.GivenWindow, WindowNumber(77));
  const platform::ReadPoint point = PointToRead(fake_.state);
  EXPECT_EQ(point.at.x, 300);
  EXPECT_EQ(point.at.y, 40);
  EXPECT_EQ(point.window, WindowNumber(78));
}

TEST_F(PointerSamplingTest, ReadersNeedNoWindowWhereTheSystemGivesIt) {
  EXPECT_EQ(PointToRead(fake_.state).window, nullptr);
  Sample();
  EXPECT_EQ(PointToRead(fake_.state).window, nullptr);
  fake_.state.GivenWindow = nullptr;
  EXPECT_EQ(PointToRead(fake_.state).window, nullptr);
}

// Hundreds of windows may lie at the point, and this runs a hundred times a second.
TEST_F(PointerSamplingTest, NothingIsAskedWhilePointAndWindowStay) {
  fake_.system.windowMeant = WindowNumber(78);
  for (int i = 0; i < 5; ++i) Sample();
  EXPECT_EQ(fake_.system.meantAsked, 1);
  EXPECT_EQ(fake_.state.TargetWindow, WindowNumber(78));
  fake_.system.cursor.y = 41;
  Sample();
  EXPECT_EQ(fake_.system.meantAsked, 2);
  fake_.system.windowAtPoint = WindowNumber(79);
  fake_.system.windowMeant = nullptr;
  Sample();
  EXPECT_EQ(fake_.system.meantAsked, 3);
  EXPECT_EQ(fake_.state.TargetWindow, WindowNumber(79));
}

TEST_F(PointerSamplingTest, TheNextCaptureAsksAnew) {
  Sample();
  fake_.state.CaptureRunning = false;
  Sample();
  EXPECT_EQ(fake_.state.GivenWindow, nullptr);
  fake_.state.CaptureRunning = true;
  Sample();
  EXPECT_EQ(fake_.system.meantAsked, 2);
}

}  // namespace
}  // namespace capture
