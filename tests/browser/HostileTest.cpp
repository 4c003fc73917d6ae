// Pages and browser windows that hang, refuse, lie, never end or die: a report comes to its end,
// shows what there is, and says nothing.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "PageReport.h"
#include "driver/Holdings.h"
#include "driver/WaitFor.h"

namespace html {
namespace {

using capture::ViewText;
using testing::EndsWith;
using testing::IsEmpty;
using testing::StartsWith;

constexpr POINT kItem = {60, 90};
constexpr wchar_t kNoDocument[] = L"GetElByPos:Generate Html-DOC failed";

class HostileTest : public PageReport {
 protected:
  // The report after this one is on a page that answers.
  void ExpectTheNextToBeRead() {
    const BrowserProcess browser(std::string(kPlace) + "fruit");
    ReportAt(browser, kItem);
    EXPECT_EQ(TextAtPoint(), L"蜜柑");
    EXPECT_THAT(Table(), EndsWith(L"蜜柑\r\n"));
    EXPECT_THAT(boxes_, IsEmpty());
  }
};

// Without a document the report is that of any window, but for its mark.
TEST_F(HostileTest, WithoutADocumentTheWindowIsReported) {
  for (const char* const scene : {"zero", "junk"}) {
    const BrowserProcess browser(std::string(kPlace) + scene);
    ReportAt(browser, kItem);
    EXPECT_EQ(Shown(ViewText::lblMsg), kNoDocument) << scene;
    EXPECT_EQ(capture_.state.BottomTexts[0], L"1") << scene;
    EXPECT_THAT(Table(), StartsWith(L"ウィンドウ情報\r\n")) << scene;
    EXPECT_EQ(Markup(), L"") << scene;
    EXPECT_EQ(Displayed(), L"") << scene;
    EXPECT_EQ(Shown(ViewText::txtWin1), L"") << scene;
  }
  ExpectTheNextToBeRead();
}

// The whole program hangs, or only says nothing about its document.
TEST_F(HostileTest, AWindowWithoutAnAnswerCostsTwoSecondsOnce) {
  for (const char* const scene : {"hung", "silent"}) {
    const BrowserProcess browser(std::string(kPlace) + scene);
    ReportAt(browser, kItem);
    EXPECT_EQ(Shown(ViewText::lblMsg), kNoDocument) << scene;
    EXPECT_GE(milliseconds_, 1900) << scene;
    EXPECT_LT(milliseconds_, 2600) << scene;
    ReportAt(browser, {70, 90});
    EXPECT_LT(milliseconds_, 500) << scene;
  }
}

TEST_F(HostileTest, OfARefusedFrameThereIsOnlyTheAddress) {
  const BrowserProcess browser(std::string(kPlace) + "foreign");
  ReportAt(browser, {100, 50});
  EXPECT_EQ(Table(), URL_LABEL L"http://host.example/foreign" TABLE_HEAD);
  EXPECT_EQ(Markup(), L"");
  EXPECT_EQ(Shown(ViewText::lblMsg), L"");
  ReportAt(browser, {300, 200});
  EXPECT_EQ(Markup(), L"外<IFRAME></IFRAME>");
  EXPECT_THAT(boxes_, IsEmpty());
}

TEST_F(HostileTest, RefusedFrameSets) {
  const BrowserProcess browser(std::string(kPlace) + "refused");
  ReportAt(browser, {50, 10});
  EXPECT_EQ(Table(), URL_LABEL L"http://host.example/set" TABLE_HEAD);
  EXPECT_THAT(boxes_, IsEmpty());
}

TEST_F(HostileTest, ParentsThatGoInACircleEnd) {
  const BrowserProcess browser(std::string(kPlace) + "circle");
  ReportAt(browser, kItem);
  EXPECT_GT(Rows(), 200U);
  EXPECT_LE(Rows(), 257U);
  EXPECT_THAT(Table(), EndsWith(L"LI                              0           蜜柑\r\n"));
}

TEST_F(HostileTest, FramesThatNeverEndHoldNoElement) {
  const BrowserProcess browser(std::string(kPlace) + "selfframe");
  ReportAt(browser, kItem);
  EXPECT_EQ(Table(), URL_LABEL L"http://host.example/nest" TABLE_HEAD);
  EXPECT_THAT(boxes_, IsEmpty());
}

TEST_F(HostileTest, FramesThatAreManyAreRead) {
  const BrowserProcess browser(std::string(kPlace) + "deep=20");
  ReportAt(browser, kItem);
  EXPECT_EQ(Rows(), 20 * 3 + 3U);
  EXPECT_EQ(TextAtPoint(), L"底");
}

TEST_F(HostileTest, HugeTextsAreReadWholeAndCutInTheTable) {
  const BrowserProcess browser(std::string(kPlace) + "huge");
  ReportAt(browser, kItem);
  EXPECT_EQ(TextAtPoint().size(), 5'000'000U);
  EXPECT_EQ(Markup().size(), 5'000'000U);
  EXPECT_EQ(Displayed().size(), 5'000'000U);
  const std::wstring cell = std::wstring(50, L'巨') + L"...\r\n";
  const std::wstring blanks(36, L' ');
  EXPECT_EQ(Table(), URL_LABEL L"http://host.example/huge" TABLE_HEAD L"HTML    " + blanks + cell +
                         L"BODY    " + blanks + cell + L"P       " + blanks + cell);
  // The pane shows the start of it.
  EXPECT_LT(Shown(ViewText::BottomPane).size(), 66'000U);
}

TEST_F(HostileTest, MembersThatFailAreEmpty) {
  const BrowserProcess browser(std::string(kPlace) + "failing");
  ReportAt(browser, kItem);
  EXPECT_EQ(Table(), URL_LABEL TABLE_HEAD);
  EXPECT_EQ(capture_.state.BottomTexts[0], L"1");
  EXPECT_THAT(boxes_, IsEmpty());
}

TEST_F(HostileTest, ProgramsMayDieInAnyCall) {
  for (const char* const member :
       {"elementFromPoint 60,90", "tagName", "id", "getAttribute value", "parentElement",
        "innerText", "innerHTML", "document", "URL", "parentWindow", "parent"}) {
    {
      const BrowserProcess browser(std::string(kPlace) + "\"dies=" + member + "\"");
      ReportAt(browser, kItem);
      EXPECT_TRUE(gui::WaitFor("the fixture is gone", [&](std::string&) {
        return !browser.IsRunning();
      })) << member;
    }
  }
  boxes_.clear();
  ExpectTheNextToBeRead();
}

TEST_F(HostileTest, FiveHundredReportsLeaveNothingBehind) {
  const BrowserProcess fruit("deadline=600 place=40,40,400,300 fruit");
  const BrowserProcess frames("deadline=600 place=460,40,400,300 scrolled");
  const BrowserProcess junk("deadline=600 place=40,360,400,300 junk");
  const BrowserProcess foreign("deadline=600 place=460,360,400,300 foreign");
  const BrowserProcess* const all[] = {&fruit, &frames, &junk, &foreign};
  constexpr POINT kPoints[] = {{60, 90}, {520, 80}, {60, 410}, {520, 370}};
  const auto report = [&](int i) {
    const auto index = static_cast<std::size_t>(i) % std::size(kPoints);
    ReportAt(*all[index], kPoints[index]);
  };
  for (int i = 0; i < 100; ++i) report(i);

  const auto held = [&] {
    return std::vector<gui::Holdings>{gui::OwnHoldings(), gui::HoldingsOf(fruit.Process().Handle()),
                                      gui::HoldingsOf(frames.Process().Handle())};
  };
  const std::vector<gui::Holdings> before = held();
  for (int i = 0; i < 500; ++i) report(i);
  const std::vector<gui::Holdings> after = held();
  for (std::size_t i = 0; i < before.size(); ++i) {
    std::printf("before: %s | after: %s\n", before[i].Text().c_str(), after[i].Text().c_str());
    EXPECT_GT(before[i].handles, 0);
    EXPECT_GT(before[i].gdiObjects, 0);
    EXPECT_LE(after[i].handles, before[i].handles);
    EXPECT_LE(after[i].gdiObjects, before[i].gdiObjects);
    EXPECT_LE(after[i].windows, before[i].windows);
  }
  // The memory of a program that gives its page away grows in Wine, also when the page is read by
  // nothing but a loop of bare calls.
  EXPECT_TRUE(IsWithin(before[0], after[0], {}));
}

}  // namespace
}  // namespace html
