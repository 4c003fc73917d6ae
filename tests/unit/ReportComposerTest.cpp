#include "capture/ReportComposer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FakeReaders.h"

namespace capture {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

TEST_F(ReportComposerTest, FillsTheBoxes) {
  Compose();
  EXPECT_EQ(fake_.view.handleTag, L"77");
  EXPECT_EQ(Text(ViewText::txthWnd), L"77");
  EXPECT_EQ(Text(ViewText::txtWin0), L"Button");
  EXPECT_EQ(Text(ViewText::txtWin1), L"");
  EXPECT_EQ(Text(ViewText::txtWin2), L"名");
  EXPECT_EQ(Text(ViewText::txtWin3), L"a\nb\r\nc");
  EXPECT_EQ(Text(ViewText::lblTextKind), L"Accessible");
  EXPECT_EQ(Text(ViewText::txtStatus), L"状態");
}

TEST_F(ReportComposerTest, HexChangesTheBoxNotItsTag) {
  fake_.settings.winHandle = L"hex";
  Compose();
  EXPECT_EQ(fake_.view.handleTag, L"77");
  EXPECT_EQ(Text(ViewText::txthWnd), L"4D");
}

TEST_F(ReportComposerTest, FillsTheSlots) {
  fake_.state.TopTexts = {L"x", L"x", L"x"};
  fake_.state.BottomTexts = {L"x", L"x", L"x", L"x"};
  Compose();
  EXPECT_EQ(fake_.state.TopTexts[1], L"MSAA");
  EXPECT_EQ(fake_.state.TopTexts[2], L"a\r\nb\r\nc");
  EXPECT_EQ(fake_.state.BottomTexts[0], L"");
  EXPECT_TRUE(fake_.state.BottomTexts[1].starts_with(L"ウィンドウ情報\r\n"));
  EXPECT_EQ(fake_.state.BottomTexts[2], L"一覧");
  EXPECT_EQ(fake_.state.BottomTexts[3], L"");
}

TEST_F(ReportComposerTest, ShowsWhatDetailChooses) {
  Compose();
  EXPECT_EQ(Text(ViewText::TopPane), L"a\r\nb\r\nc");
  EXPECT_EQ(Text(ViewText::BottomPane), L"一覧");
  fake_.settings.detail = 1;
  Compose();
  EXPECT_EQ(Text(ViewText::TopPane), L"MSAA");
  EXPECT_TRUE(Text(ViewText::BottomPane).starts_with(L"ウィンドウ情報"));
}

TEST_F(ReportComposerTest, ReadsInThisOrder) {
  Compose();
  std::vector<std::string> reads;
  for (const std::string& call : fake_.trace) {
    if (call != "text" && call != "show part") reads.push_back(call);
  }
  EXPECT_THAT(reads, ElementsAre("facts", "point", "control", "pump", "information", "accessible",
                                 "status"));
}

TEST_F(ReportComposerTest, ShowsTheListBeforeItReadsOn) {
  std::wstring bottomInPump;
  std::wstring detailInPump = L"?";
  fake_.system.onPump = [&] {
    bottomInPump = Text(ViewText::BottomPane);
    detailInPump = fake_.state.BottomTexts[1];
  };
  Compose();
  EXPECT_EQ(bottomInPump, L"一覧");
  EXPECT_EQ(detailInPump, L"");
}

TEST_F(ReportComposerTest, StaysWithTheWindowItBeganWith) {
  fake_.system.onPump = [this] {
    fake_.state.TargetWindow = WindowNumber(88);
    fake_.state.CapturePoint = {1, 1};
  };
  Compose();
  EXPECT_EQ(readers_.statusOf, WindowNumber(77));
  EXPECT_NE(fake_.state.BottomTexts[1].find(L"：77(x4D)"), std::wstring::npos);
}

TEST_F(ReportComposerTest, ReadersSeeTheTargetMove) {
  readers_.onRead = [this](const report::ControlRead& read) {
    EXPECT_EQ(read.session.target, WindowNumber(77));
    fake_.system.onPump = [this] { fake_.state.TargetWindow = WindowNumber(88); };
    read.session.yield();
    EXPECT_EQ(read.session.target, WindowNumber(88));
    EXPECT_TRUE(read.session.stillRunning());
    fake_.state.CaptureRunning = false;
    EXPECT_FALSE(read.session.stillRunning());
    read.session.showProgress(L"3/7");
    EXPECT_EQ(Text(ViewText::txtCount), L"3/7");
  };
  Compose();
  // The last progress stays, because it is the number of items.
  EXPECT_EQ(Text(ViewText::txtCount), L"3/7");
}

TEST_F(ReportComposerTest, TheAccessibleReportKnowsThatTheTargetMovedBeforeIt) {
  fake_.system.onPump = [this] { fake_.state.TargetWindow = WindowNumber(88); };
  bool asked = false;
  readers_.onAccessible = [&](const platform::ReadSession& session) {
    asked = true;
    EXPECT_EQ(session.target, WindowNumber(88));
    EXPECT_EQ(session.window, WindowNumber(77));
  };
  Compose();
  EXPECT_TRUE(asked);
}

TEST_F(ReportComposerTest, TheAccessibleReportShowsItsProgressAndRestoresTheCount) {
  readers_.onRead = [](const report::ControlRead& read) { read.session.showProgress(L"3/7"); };
  readers_.onAccessible = [this](const platform::ReadSession&) {
    EXPECT_EQ(Text(ViewText::txtCount), L"9");
  };
  Compose();
  EXPECT_EQ(Text(ViewText::txtCount), L"3/7");
}

TEST_F(ReportComposerTest, TheStopKeyStopsBetweenTwoItems) {
  readers_.onRead = [this](const report::ControlRead& read) {
    read.session.yield();
    EXPECT_TRUE(read.session.stillRunning());
    fake_.system.pressed.insert(VK_ESCAPE);
    read.session.yield();
    EXPECT_FALSE(read.session.stillRunning());
  };
  Compose();
  EXPECT_FALSE(fake_.state.CaptureRunning);
  EXPECT_EQ(fake_.system.clipboard, L"(before)");
}

TEST_F(ReportComposerTest, ThePressThatCopiesIsKeptForAfterTheReport) {
  fake_.settings.continueCapture = 1;
  fake_.view.texts[ViewText::TopPane] = L"前の文字";
  readers_.onRead = [this](const report::ControlRead& read) {
    fake_.system.pressed.insert(VK_ESCAPE);
    read.session.yield();
    EXPECT_TRUE(read.session.stillRunning());
  };
  Compose();
  EXPECT_TRUE(fake_.state.CaptureRunning);
  EXPECT_TRUE(fake_.state.StopKeyKept);
  EXPECT_EQ(fake_.system.clipboard, L"(before)");
}

TEST_F(ReportComposerTest, TakesTheTextFromTheHandleWhenAsked) {
  fake_.settings.fromHwnd = 1;
  Compose();
  EXPECT_EQ(fake_.state.TopTexts[2], L"窓の名");
  EXPECT_EQ(readers_.accessibleOf, WindowNumber(77));
  EXPECT_THAT(fake_.trace, Not(Contains("point")));
  EXPECT_EQ(Text(ViewText::lblTextKind), L"");
}

TEST_F(ReportComposerTest, AHugeTextGivesItsMemoryBack) {
  readers_.pointText.assign(1'000'000, L'a');
  Compose();
  EXPECT_EQ(fake_.state.TopTexts[2].size(), 1'000'000U);
  readers_.pointText = L"b";
  Compose();
  EXPECT_EQ(fake_.state.TopTexts[2], L"b");
  EXPECT_LT(fake_.state.TopTexts[2].capacity(), 1000U);
}

TEST_F(ReportComposerTest, WithoutAWindowTheObjectIsThatAtThePoint) {
  fake_.settings.fromHwnd = 1;
  fake_.state.TargetWindow = nullptr;
  readers_.listOf = nullptr;
  Compose();
  EXPECT_EQ(readers_.accessibleOf, nullptr);
}

TEST_F(ReportComposerTest, OtherwiseTheTextComesFromThePoint) {
  Compose();
  for (const POINT& asked : {readers_.askedPoint, readers_.listAt, readers_.accessibleAt}) {
    EXPECT_EQ(asked.x, 300);
    EXPECT_EQ(asked.y, 400);
  }
  EXPECT_EQ(readers_.accessibleOf, nullptr);
}

TEST_F(ReportComposerTest, WithTheTipAsHintTheStatusTextIsLeftAlone) {
  fake_.settings.hint = 1;
  fake_.view.texts[ViewText::txtStatus] = L"前";
  Compose();
  EXPECT_EQ(Text(ViewText::txtStatus), L"前");
  EXPECT_THAT(fake_.trace, Not(Contains("status")));
}

TEST_F(ReportComposerTest, TheStatusTextIsEmptiedFirst) {
  fake_.view.texts[ViewText::txtStatus] = L"前";
  readers_.failing = "status";
  Compose();
  EXPECT_EQ(Text(ViewText::txtStatus), L"");
}

TEST_F(ReportComposerTest, MessagesOfTheReadersAreShown) {
  readers_.message = L"GetElByPos:Generate Html-DOC failed";
  Compose();
  EXPECT_EQ(Text(ViewText::lblMsg), L"GetElByPos:Generate Html-DOC failed");
}

struct CategoryCase {
  const wchar_t* className;
  report::Category category;
};

class CategoryTest : public ReportComposerTest, public testing::WithParamInterface<CategoryCase> {};

TEST_P(CategoryTest, OfTheClassIsWhatTheListIsReadBy) {
  readers_.className = GetParam().className;
  Compose();
  EXPECT_THAT(fake_.trace, Contains("control").Times(1));
  EXPECT_EQ(readers_.listCategory, GetParam().category);
  EXPECT_EQ(fake_.state.BottomTexts[2], L"一覧");
}

INSTANTIATE_TEST_SUITE_P(Classes, CategoryTest,
                         testing::Values(CategoryCase{L"Edit", report::Category::Edit},
                                         CategoryCase{L"#32770", report::Category::Child},
                                         CategoryCase{L"IEFrame", report::Category::IeFrame},
                                         CategoryCase{L"Static", report::Category::Other}));

class FailingReaderTest : public ReportComposerTest,
                          public testing::WithParamInterface<const char*> {};

TEST_P(FailingReaderTest, LeavesItsSlotAndTheReportGoesOn) {
  readers_.failing = GetParam();
  Compose();
  EXPECT_EQ(fake_.state.TopTexts[2].empty(), readers_.failing == "point");
  EXPECT_EQ(fake_.state.BottomTexts[2].empty(), readers_.failing == "control");
  EXPECT_EQ(fake_.state.BottomTexts[1].empty(), readers_.failing == "information");
  EXPECT_EQ(fake_.state.TopTexts[1].empty(), readers_.failing == "accessible");
  EXPECT_THAT(fake_.trace, Contains("status"));
}

INSTANTIATE_TEST_SUITE_P(Readers, FailingReaderTest,
                         testing::Values("point", "control", "information", "accessible",
                                         "status"));

TEST_F(ReportComposerTest, SurvivesAScreenAndASystemThatFail) {
  fake_.view.failing = true;
  fake_.system.failing = true;
  EXPECT_NO_THROW(Compose());
  EXPECT_EQ(fake_.state.TopTexts[2], L"a\r\nb\r\nc");
}

TEST(WithLineEndsTest, EndsEveryLineWithCrLf) {
  EXPECT_EQ(WithLineEnds(L"x\ny\r\nz"), L"x\r\ny\r\nz");
  EXPECT_EQ(WithLineEnds(L"x\x01y\rz"), L"x\r\ny\rz");
}

}  // namespace
}  // namespace capture
