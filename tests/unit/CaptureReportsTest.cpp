// When a capture reports, and what else it shows.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CaptureLoopFixture.h"

namespace capture {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CaptureReportsTest : public CaptureLoopFixture {};

TEST_F(CaptureReportsTest, PlacesTheMarkersInEveryPassWhileShifted) {
  fake_.settings.shift = 1;
  Run(4);
  ASSERT_EQ(fake_.view.markersPlaced.size(), 4U);
  EXPECT_EQ(fake_.view.markersPlaced[2].x, 50);
  EXPECT_EQ(fake_.view.markersPlaced[2].y, 60);
}

TEST_F(CaptureReportsTest, WithoutShiftTheMarkersAreNotPlaced) {
  Run(4);
  EXPECT_THAT(fake_.view.markersPlaced, IsEmpty());
}

TEST_F(CaptureReportsTest, ShowsTheMarkersOnceASecond) {
  fake_.settings.shift = 1;
  std::vector<int> shownIn;
  int before = 0;
  Run(205, [&](int pass) {
    if (fake_.view.markersShown > before) shownIn.push_back(pass);
    before = fake_.view.markersShown;
  });
  // At the start, then in the first pass that has a tick, then after more than 1000 ms.
  EXPECT_THAT(shownIn, ElementsAre(1, 2, 103, 204));
}

TEST_F(CaptureReportsTest, ReportsOnceThePointHasRested) {
  Run(20);
  EXPECT_EQ(reports_, 1);
  // The first pass ends at 100010, the point has rested 50 ms when the one that ended at 100060 is
  // over.
  EXPECT_EQ(reportTicks_[0], 100'060U);
  EXPECT_EQ(fake_.state.LastReportTick, 100'060U);
  EXPECT_EQ(fake_.state.ReportState, kReported);
}

TEST_F(CaptureReportsTest, NotesTheTickBeforeTheReport) {
  compose_ = [this] { fake_.system.now += 5000; };
  Run(20);
  EXPECT_EQ(reports_, 1);
  EXPECT_EQ(fake_.state.LastReportTick, 100'060U);
}

TEST_F(CaptureReportsTest, ReportsAgainEveryThirtySeconds) {
  Run(6600);
  ASSERT_EQ(reports_, 3);
  EXPECT_EQ(reportTicks_[1] - reportTicks_[0], 30'000U);
  EXPECT_EQ(reportTicks_[2] - reportTicks_[1], 30'000U);
}

TEST_F(CaptureReportsTest, ARequestReportsInTheNextPass) {
  Run(40, [this](int pass) {
    if (pass == 30) fake_.state.RefreshRequest = 1;
    if (pass == 31) {
      EXPECT_EQ(fake_.state.RefreshRequest, 0);
    }
  });
  EXPECT_EQ(reports_, 2);
  EXPECT_EQ(reportTicks_[1], 100'300U);
}

TEST_F(CaptureReportsTest, SaysThatItIsCapturing) {
  compose_ = [this] { EXPECT_EQ(Text(ViewText::lblMsg), L"取得中・・・・"); };
  Run(10, [this](int pass) {
    if (pass == 9) {
      EXPECT_EQ(Text(ViewText::lblMsg), L"");
    }
  });
  ASSERT_EQ(reports_, 1);
}

TEST_F(CaptureReportsTest, KeepsAMessageThatTheReportLeft) {
  compose_ = [this] { fake_.view.SetText(ViewText::lblMsg, L"何か"); };
  Run(10, [this](int pass) {
    if (pass == 9) {
      EXPECT_EQ(Text(ViewText::lblMsg), L"何か");
    }
  });
}

TEST_F(CaptureReportsTest, PumpsBetweenTheMessageAndTheReport) {
  std::size_t pumpsBefore = 0;
  compose_ = [&] { pumpsBefore = fake_.trace.size(); };
  Run(10);
  ASSERT_GT(pumpsBefore, 2U);
  EXPECT_EQ(fake_.trace[pumpsBefore - 1], "pump");
  EXPECT_EQ(fake_.trace[pumpsBefore - 2], "text");
}

class OwnWindowTest : public CaptureReportsTest {
 protected:
  OwnWindowTest() {
    fake_.state.TopTexts[2] = L"kept";
    fake_.state.BottomTexts[1] = L"kept too";
    for (const ViewText part : kCleared) fake_.view.texts[part] = L"old";
    fake_.view.texts[ViewText::txtWin3] = L"old";
  }
  void ExpectCleared() {
    EXPECT_EQ(reports_, 0);
    EXPECT_EQ(fake_.state.ReportState, kReported);
    for (const ViewText part : kCleared) EXPECT_EQ(Text(part), L"");
    // The texts come back with the next click on "detail".
    EXPECT_EQ(Text(ViewText::txtWin3), L"old");
    EXPECT_EQ(fake_.state.TopTexts[2], L"kept");
    EXPECT_EQ(fake_.state.BottomTexts[1], L"kept too");
    EXPECT_EQ(fake_.state.LastReportTick, 100'000U);
  }

  static constexpr ViewText kCleared[] = {
      ViewText::txthWnd,  ViewText::txtWin0, ViewText::txtWin1,   ViewText::txtWin2,
      ViewText::txtCount, ViewText::TopPane, ViewText::BottomPane};
};

TEST_F(OwnWindowTest, IsNotReportedOn) {
  target_ = WindowNumber(10);
  Run(10);
  ExpectCleared();
}

TEST_F(OwnWindowTest, ItsControlsAreNotReportedOn) {
  fake_.system.parents[target_] = WindowNumber(10);
  Run(10);
  ExpectCleared();
}

TEST_F(OwnWindowTest, DescendantsAndOwnedWindowsAreNotReportedOn) {
  fake_.system.parents[target_] = WindowNumber(12);
  fake_.system.parents[WindowNumber(12)] = WindowNumber(10);
  Run(10);
  ExpectCleared();
}

class HintTest : public CaptureReportsTest {
 protected:
  HintTest() {
    fake_.settings.hint = 1;
    fake_.system.tooltip = L"ヒント";
  }
};

TEST_F(HintTest, IsShownFromHalfASecondOfRestToThree) {
  std::vector<std::uint32_t> asked;
  int before = 0;
  Run(400, [&](int) {
    if (fake_.system.tooltipsAsked > before) asked.push_back(fake_.system.now - 10);
    before = fake_.system.tooltipsAsked;
  });
  // Rest counts from 100010; 501 ms is first passed at 510, and more than 100 ms lie between two.
  ASSERT_GE(asked.size(), 2U);
  EXPECT_EQ(asked.front(), 100'520U);
  EXPECT_EQ(asked[1], 100'630U);
  EXPECT_LT(asked.back(), 103'010U);
  EXPECT_GE(asked.back(), 102'900U);
  EXPECT_EQ(Text(ViewText::txtStatus), L"ヒント");
}

TEST_F(HintTest, AnEmptyOneLeavesTheStatusText) {
  fake_.system.tooltip = L"";
  fake_.view.texts[ViewText::txtStatus] = L"before";
  Run(100);
  EXPECT_GT(fake_.system.tooltipsAsked, 0);
  EXPECT_EQ(Text(ViewText::txtStatus), L"before");
}

TEST_F(HintTest, IsNotReadOtherwise) {
  fake_.settings.hint = 0;
  Run(100);
  EXPECT_EQ(fake_.system.tooltipsAsked, 0);
}

}  // namespace
}  // namespace capture
