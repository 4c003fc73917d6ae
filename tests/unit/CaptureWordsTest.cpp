#include "capture/CaptureWords.h"

#include <gtest/gtest.h>

#include "FakeCapture.h"
#include "ui/ProgramVersion.h"

namespace capture {
namespace {

TEST(FormatMousePositionTest, AlignsToTheRight) {
  EXPECT_EQ(FormatMousePosition({12, 7}), L"  12-  7");
  EXPECT_EQ(FormatMousePosition({1234, 1080}), L"1234-1080");
  EXPECT_EQ(FormatMousePosition({0, 0}), L"   0-  0");
  EXPECT_EQ(FormatMousePosition({-5, -12}), L"  -5--12");
  EXPECT_EQ(FormatMousePosition({-12345, 100}), L"-12345-100");
}

TEST(StopHintTest, NamesTheKey) {
  EXPECT_EQ(StopHint(L"ESC", 0, L"Ctrl"), L"ESCで停止");
  EXPECT_EQ(StopHint(L"", 0, L"Ctrl"), L"で停止");
}

TEST(StopHintTest, NamesTheActionTestOnALineOfItsOwn) {
  EXPECT_EQ(StopHint(L"F9", 1, L"Ctrl"), L"F9で停止\r\nCtrl で DoDefAction Test");
  EXPECT_EQ(StopHint(L"F9", 2, L"Ctrl"), L"F9で停止\r\nCtrl で Select 1 Test");
  EXPECT_EQ(StopHint(L"F9", 3, L"Shift"), L"F9で停止\r\nShift で Select 2 Test");
  EXPECT_EQ(StopHint(L"F9", 4, L"Ctrl"), L"F9で停止");
  EXPECT_EQ(StopHint(L"F9", -1, L"Ctrl"), L"F9で停止");
}

TEST(PointDistanceTest, IsTheNearestInteger) {
  EXPECT_EQ(PointDistance({0, 0}, {3, 4}), 5);
  EXPECT_EQ(PointDistance({0, 0}, {1, 1}), 1);
  EXPECT_EQ(PointDistance({7, 7}, {7, 7}), 0);
  EXPECT_EQ(PointDistance({0, 0}, {2, 2}), 3);  // 2.83
  EXPECT_EQ(PointDistance({-10, 5}, {20, -35}), 50);
  EXPECT_EQ(PointDistance({0, 0}, {100'000, 100'000}), 141421);
}

TEST(CommandLineTest, DebugIsItsFirstWord) {
  EXPECT_TRUE(AsksForDebugMode(L"debug"));
  EXPECT_TRUE(AsksForDebugMode(L"DEBUG x"));
  EXPECT_TRUE(AsksForDebugMode(L"  Debug no_start"));
  EXPECT_FALSE(AsksForDebugMode(L""));
  EXPECT_FALSE(AsksForDebugMode(L"x debug"));
  EXPECT_FALSE(AsksForDebugMode(L"debugger"));
  EXPECT_FALSE(AsksForDebugMode(L"debu"));
  EXPECT_FALSE(AsksForDebugMode(L"no_start debug"));
}

TEST(StartsByItselfTest, WhenAskedForAndNotForbidden) {
  const auto starts = [](std::int32_t autoStart, const wchar_t* commandLine) {
    settings::Settings settings;
    settings.autoStart = autoStart;
    return StartsByItself(settings, commandLine);
  };
  EXPECT_TRUE(starts(1, L""));
  EXPECT_FALSE(starts(0, L""));
  EXPECT_FALSE(starts(2, L""));
  EXPECT_FALSE(starts(1, L"no_start"));
  EXPECT_FALSE(starts(1, L"  no_start "));
  for (const wchar_t* const other : {L"x no_start", L"no_start x", L"NO_START", L"debug"}) {
    EXPECT_TRUE(starts(1, other));
  }
}

TEST(VersionTextTest, PutsTheRevisionDirectlyAfterTheMinorNumber) {
  EXPECT_EQ(ui::VersionTextOf(1, 2, 3), L"1.23");
  EXPECT_EQ(ui::VersionTextOf(10, 0, 45), L"10.045");
}

}  // namespace
}  // namespace capture
