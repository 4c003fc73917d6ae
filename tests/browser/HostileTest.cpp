// Pages and browser windows that hang, refuse, lie, never end or die: a report ends, shows what
// there is, and reports no error.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "PageReport.h"
#include "bed/Needs.h"
#include "driver/Holdings.h"
#include "driver/WaitFor.h"

namespace html {
namespace {

using capture::ViewText;
using testing::EndsWith;
using testing::HasSubstr;
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

// Without a document the report is that of any window, except for its flag.
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

// A window that answers everything else can be read as any other.
TEST_F(HostileTest, WithoutADocumentTheTextsAreThoseOfAnyWindow) {
  const BrowserProcess browser(std::string(kPlace) + "zero");
  browser["document"].SetText("文書の無い窓");
  for (settings_.fromHwnd = 0; settings_.fromHwnd <= 1; ++settings_.fromHwnd) {
    ReportAt(browser, kItem);
    EXPECT_EQ(TextAtPoint(), L"文書の無い窓") << settings_.fromHwnd;
    EXPECT_EQ(Shown(ViewText::txtWin3), L"文書の無い窓") << settings_.fromHwnd;
    EXPECT_EQ(Shown(ViewText::txtWin2), L"文書の無い窓") << settings_.fromHwnd;
    EXPECT_THAT(capture_.state.TopTexts[1], HasSubstr(L"Name       : 文書の無い窓\r\n"))
        << settings_.fromHwnd;
    EXPECT_EQ(Shown(ViewText::lblTextKind), settings_.fromHwnd == 0 ? L"Accessible" : L"");
  }
}

// The request for its document, and then the test message.
TEST_F(HostileTest, AWindowThatHangsCostsTwoAndAHalfSecondsOnce) {
  const BrowserProcess browser(std::string(kPlace) + "hung");
  ReportAt(browser, kItem);
  EXPECT_EQ(Shown(ViewText::lblMsg), kNoDocument);
  EXPECT_GE(milliseconds_, 2400);
  EXPECT_LT(milliseconds_, 3100);
  EXPECT_EQ(Shown(ViewText::txtWin2), L"");
  ReportAt(browser, {70, 90});
  EXPECT_LT(milliseconds_, 500);
}

// It does not answer the request for its document, but everything else.
TEST_F(HostileTest, AWindowThatIsLateIsReadAsAnyOtherButForItsDocument) {
  const BrowserProcess browser(std::string(kPlace) + "silent");
  browser["document"].SetText("遅い窓");
  ReportAt(browser, kItem);
  EXPECT_EQ(Shown(ViewText::lblMsg), kNoDocument);
  EXPECT_EQ(TextAtPoint(), L"遅い窓");
  EXPECT_EQ(Shown(ViewText::txtWin2), L"遅い窓");
  EXPECT_THAT(Table(), StartsWith(L"ウィンドウ情報\r\n"));
  EXPECT_GE(milliseconds_, 1900);
  EXPECT_LT(milliseconds_, 2600);
}

TEST_F(HostileTest, OfARefusedFrameThereIsOnlyTheAddress) {
  const BrowserProcess browser(std::string(kPlace) + "foreign");
  ReportAt(browser, {100, 50});
  EXPECT_EQ(Table(), URL_LABEL L"http://host.example/foreign" TABLE_HEAD);
  EXPECT_EQ(Markup(), L"");
  EXPECT_THAT(Shown(ViewText::lblMsg), StartsWith(L"ResolveFrameDocument:-2147024891 "));
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

TEST_F(HostileTest, ParentsInACircleEnd) {
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
  NEEDS(bed::CountersOfWine());
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
  // In Wine the memory of a program with a page grows also when only a loop of bare calls reads the
  // page.
  EXPECT_TRUE(IsWithin(before[0], after[0], {}));
}

}  // namespace
}  // namespace html
