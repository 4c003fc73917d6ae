// Reports over a browser's page.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FakeReaders.h"

namespace capture {
namespace {

using testing::ElementsAre;

constexpr wchar_t kElementReport[] =
    L"URL     http://host/\r\n"
    L"\r\n"
    L"Tag     Type        Id          value       表示文字\r\n"
    L"------------------------------------------\r\n"
    L"HTML                                        全て\r\n"
    L"P                   id                      長...\r\n";

class PageReportTest : public ReportComposerTest {
 protected:
  PageReportTest() {
    readers_.className = L"Internet Explorer_Server";
    readers_.hasPage = true;
    fake_.settings.htmlTagTextLength = 1;
  }
  std::vector<std::string> Reads() const {
    std::vector<std::string> reads;
    for (const std::string& call : fake_.trace) {
      if (call != "text" && !call.ends_with(" part")) reads.push_back(call);
    }
    return reads;
  }
};

TEST_F(PageReportTest, FillsTheSlotsAndTheBoxes) {
  Compose();
  EXPECT_EQ(fake_.state.BottomTexts[0], L"1");
  EXPECT_EQ(fake_.state.BottomTexts[1], kElementReport);
  EXPECT_EQ(fake_.state.BottomTexts[2], L"<b>");
  EXPECT_EQ(fake_.state.BottomTexts[3], L"表示");
  EXPECT_EQ(fake_.state.TopTexts[1], L"MSAA");
  EXPECT_EQ(Text(ViewText::txtWin1), L"外/内　P");
  EXPECT_EQ(Text(ViewText::txtWin2), L"名");
  EXPECT_EQ(Text(ViewText::lblTextKind), L"HTML");
  EXPECT_EQ(Text(ViewText::txtStatus), L"状態");
  EXPECT_FALSE(fake_.view.shown[ViewText::txtCount]);
}

TEST_F(PageReportTest, OutsideOfFramesThePathIsEmpty) {
  readers_.pageFacts.framePath.clear();
  Compose();
  EXPECT_EQ(Text(ViewText::txtWin1), L"　P");
}

TEST_F(PageReportTest, ReadsInThisOrder) {
  Compose();
  EXPECT_THAT(Reads(),
              ElementsAre("facts", "point", "page", "pump", "page facts", "accessible", "status"));
}

TEST_F(PageReportTest, TheTextsAreThereBeforeTheElements) {
  fake_.system.onPump = [this] {
    EXPECT_EQ(fake_.state.BottomTexts[2], L"<b>");
    EXPECT_EQ(fake_.state.BottomTexts[3], L"表示");
  };
  Compose();
}

TEST_F(PageReportTest, TheBottomPaneIsRefreshedBeforeTheAccessibleReport) {
  readers_.failing = "accessible";
  Compose();
  EXPECT_EQ(Text(ViewText::BottomPane), L"<b>");
}

TEST_F(PageReportTest, TheSettingsChooseWhatThePanesShow) {
  Compose();
  EXPECT_EQ(Text(ViewText::BottomPane), L"<b>");
  fake_.settings.dispText = 1;
  Compose();
  EXPECT_EQ(Text(ViewText::BottomPane), L"表示");
  fake_.settings.detail = 1;
  Compose();
  EXPECT_EQ(Text(ViewText::TopPane), L"MSAA");
  EXPECT_EQ(Text(ViewText::BottomPane), kElementReport);
}

TEST_F(PageReportTest, TheElementsAreReadUnderASessionThatLeavesTheCount) {
  readers_.onFacts = [this](const platform::ReadSession& session) {
    EXPECT_EQ(session.target, WindowNumber(77));
    session.showProgress(L"5");
    fake_.system.onPump = [this] { fake_.state.TargetWindow = WindowNumber(88); };
    session.yield();
    EXPECT_EQ(session.target, WindowNumber(88));
    fake_.state.CaptureRunning = false;
    EXPECT_FALSE(session.stillRunning());
  };
  Compose();
  EXPECT_EQ(Text(ViewText::txtCount), L"");
}

TEST_F(PageReportTest, ThePageIsThatOfTheWindowItselfAtThePoint) {
  fake_.system.parents[WindowNumber(77)] = WindowNumber(70);
  for (const wchar_t* className : {L"Internet Explorer_Server", L"MicrosoftSilverlight"}) {
    readers_.className = className;
    Compose();
    EXPECT_EQ(readers_.documentWindow, WindowNumber(77));
    EXPECT_EQ(readers_.askedPoint.x, 300);
    EXPECT_EQ(readers_.askedPoint.y, 400);
  }
}

TEST_F(PageReportTest, ListsOfThePageAreReadThroughTheirParent) {
  fake_.system.parents[WindowNumber(77)] = WindowNumber(70);
  for (const wchar_t* className :
       {L"Internet Explorer_TridentCmboBx", L"Internet Explorer_TridentLstBox"}) {
    readers_.className = className;
    readers_.documentWindow = nullptr;
    Compose();
    EXPECT_EQ(readers_.documentWindow, WindowNumber(70)) << className;
    EXPECT_EQ(fake_.state.BottomTexts[1], kElementReport);
  }
}

TEST_F(PageReportTest, WithoutADocumentWindowTheInformationIsShown) {
  readers_.className = L"Internet Explorer_Hidden";
  Compose();
  EXPECT_EQ(fake_.state.BottomTexts[0], L"1");
  EXPECT_EQ(fake_.state.BottomTexts[2], L"");
  EXPECT_TRUE(fake_.state.BottomTexts[1].starts_with(L"ウィンドウ情報"));
  EXPECT_EQ(Text(ViewText::txtWin1), L"");
  EXPECT_EQ(Text(ViewText::lblTextKind), L"Accessible");
  EXPECT_THAT(Reads(), ElementsAre("facts", "point", "information", "accessible", "status"));
}

TEST_F(PageReportTest, WithoutADocumentTheInformationIsShownToo) {
  readers_.hasPage = false;
  Compose();
  EXPECT_EQ(fake_.state.BottomTexts[0], L"1");
  EXPECT_FALSE(fake_.view.shown[ViewText::txtCount]);
  EXPECT_TRUE(fake_.state.BottomTexts[1].starts_with(L"ウィンドウ情報"));
  EXPECT_EQ(Text(ViewText::txtWin1), L"");
}

TEST_F(PageReportTest, WithoutAnElementTheAddressIsShown) {
  fake_.view.texts[ViewText::txtWin1] = L"前";
  readers_.pageFacts = {L"http://host/", {}, {}};
  Compose();
  EXPECT_TRUE(fake_.state.BottomTexts[1].starts_with(L"URL     http://host/\r\n"));
  EXPECT_EQ(Text(ViewText::txtWin1), L"");
}

TEST_F(PageReportTest, TheNextWindowHasNothingOfThePage) {
  Compose();
  readers_.className = L"Notepad";
  Compose();
  EXPECT_EQ(fake_.state.BottomTexts[0], L"");
  EXPECT_EQ(fake_.state.BottomTexts[3], L"");
  EXPECT_EQ(Text(ViewText::txtWin1), L"");
  EXPECT_EQ(Text(ViewText::lblTextKind), L"Accessible");
  EXPECT_TRUE(fake_.view.shown[ViewText::txtCount]);
}

TEST_F(PageReportTest, OfAHungWindowNothingElseIsRead) {
  readers_.answers = false;
  readers_.hasPage = false;
  fake_.settings.fromHwnd = 1;
  Compose();
  EXPECT_THAT(Reads(), ElementsAre("facts", "page", "information"));
  EXPECT_EQ(fake_.state.TopTexts[1], L"");
  EXPECT_EQ(fake_.state.TopTexts[2], L"");
  EXPECT_EQ(Text(ViewText::txtStatus), L"");
}

class FailingPageTest : public PageReportTest, public testing::WithParamInterface<const char*> {};

TEST_P(FailingPageTest, LeavesItsSlotsAndTheReportGoesOn) {
  readers_.failing = GetParam();
  Compose();
  EXPECT_EQ(fake_.state.BottomTexts[3].empty(), readers_.failing != "page facts");
  EXPECT_FALSE(fake_.state.BottomTexts[1].empty());
  EXPECT_EQ(fake_.state.TopTexts[1], L"MSAA");
  EXPECT_EQ(Text(ViewText::txtStatus), L"状態");
}

INSTANTIATE_TEST_SUITE_P(Steps, FailingPageTest, testing::Values("page", "page facts"));

}  // namespace
}  // namespace capture
