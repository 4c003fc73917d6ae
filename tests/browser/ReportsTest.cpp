// Reports on well-behaved pages, compared with texts written by hand.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <oleauto.h>
#include <wrl/client.h>

#include <string>

#include "PageReport.h"
#include "Pages.h"

namespace html {
namespace {

using capture::ViewText;
using testing::EndsWith;
using testing::IsEmpty;

#define FRUIT_HEAD \
  URL_LABEL L"http://kudamono.example/一覧.html" TABLE_HEAD                          \
  L"HTML                                        果物の頁林檎蜜柑葡萄 店へ\r\n" \
  L"BODY                                        果物の頁林檎蜜柑葡萄 店へ\r\n"
#define FRUIT_LIST                                                      \
  L"DIV                 box                     林檎蜜柑葡萄\r\n" \
  L"UL                                          林檎蜜柑葡萄\r\n"

constexpr POINT kItem = {60, 90};
constexpr POINT kOnlyBody = {350, 280};

class ReportsTest : public PageReport {};

TEST_F(ReportsTest, AListItem) {
  const BrowserProcess browser(std::string(kPlace) + "fruit");
  ReportAt(browser, kItem);
  EXPECT_EQ(Table(), FRUIT_HEAD FRUIT_LIST L"LI                              0           蜜柑\r\n");
  EXPECT_EQ(TextAtPoint(), L"蜜柑");
  EXPECT_EQ(Displayed(), L"蜜柑");
  EXPECT_EQ(Markup(), L"蜜柑");
  EXPECT_EQ(capture_.state.BottomTexts[0], L"1");
  EXPECT_EQ(Shown(ViewText::txtWin0), L"Internet Explorer_Server");
  EXPECT_EQ(Shown(ViewText::txtWin1), L"　LI");
  EXPECT_EQ(Shown(ViewText::txtWin2), L"");
  EXPECT_EQ(Shown(ViewText::txtWin3), L"蜜柑");
  EXPECT_EQ(Shown(ViewText::lblTextKind), L"HTML");
  EXPECT_EQ(Shown(ViewText::lblMsg), L"");
  EXPECT_FALSE(capture_.view.shown[ViewText::txtCount]);
  EXPECT_THAT(boxes_, IsEmpty());
}

// The texts of a report, and their methods.
TEST_F(ReportsTest, ValuesComeBeforeTexts) {
  const BrowserProcess browser(std::string(kPlace) + "fruit");
  const auto methods = [&] { return capture_.view.writes[ViewText::lblTextKind]; };
  ReportAt(browser, {50, 220});
  EXPECT_EQ(Table(), FRUIT_HEAD L"INPUT   text        fruit       無花果         \r\n");
  EXPECT_EQ(TextAtPoint(), L"無花果");
  EXPECT_THAT(methods(), testing::ElementsAre(L"Value", L"HTML"));
  ReportAt(browser, {50, 110});
  EXPECT_EQ(Table(), FRUIT_HEAD FRUIT_LIST L"LI                  last        3           葡萄\r\n");
  EXPECT_EQ(TextAtPoint(), L"3");
  ReportAt(browser, {50, 250});
  EXPECT_EQ(Table(), FRUIT_HEAD L"A                                           店へ\r\n");
  EXPECT_EQ(TextAtPoint(), L"店へ");
  EXPECT_THAT(methods(),
              testing::ElementsAre(L"Value", L"HTML", L"Value", L"HTML", L"InnerText", L"HTML"));
}

TEST_F(ReportsTest, TextsOfTheAncestorThatIsChosen) {
  struct Level {
    const wchar_t* displayed;
    const wchar_t* markup;
  };
  const wchar_t* const items = L"林檎\r\n蜜柑\r\n葡萄";
  const wchar_t* const page = L"果物の頁\r\n\r\n林檎\r\n蜜柑\r\n葡萄\r\n\r\n 店へ";
#define LIST_MARKUP L"\r\n<LI>林檎\r\n<LI>蜜柑\r\n<LI id=last>葡萄</LI>"
#define BODY_MARKUP \
  L"<H1>果物の頁</H1>\r\n<DIV id=box><UL>" LIST_MARKUP L"</UL></DIV>\r\n" \
  L"<INPUT value=無花果 name=fruit> <A href=\"shop.html\">店へ</A>"
  const Level levels[] = {
      {L"蜜柑", L"蜜柑"},
      {items, LIST_MARKUP},
      {items, L"<UL>" LIST_MARKUP L"</UL>"},
      {page, BODY_MARKUP},
      {page, L"<HEAD></HEAD>\r\n<BODY>" BODY_MARKUP L"</BODY>"},
  };
  const BrowserProcess browser(std::string(kPlace) + "fruit");
  for (settings_.startNode = 0; settings_.startNode <= 4; ++settings_.startNode) {
    const Level& level = levels[settings_.startNode];
    for (settings_.dispText = 0; settings_.dispText <= 1; ++settings_.dispText) {
      settings_.detail = 0;
      ReportAt(browser, kItem);
      EXPECT_EQ(Displayed(), level.displayed) << settings_.startNode;
      EXPECT_EQ(Markup(), level.markup) << settings_.startNode;
      EXPECT_EQ(Shown(ViewText::TopPane), L"蜜柑");
      EXPECT_EQ(Shown(ViewText::BottomPane), settings_.dispText == 1 ? Displayed() : Markup());
      settings_.detail = 1;
      ReportAt(browser, kItem);
      EXPECT_EQ(Shown(ViewText::BottomPane),
                FRUIT_HEAD FRUIT_LIST L"LI                              0           蜜柑\r\n");
      EXPECT_EQ(Shown(ViewText::TopPane), capture_.state.TopTexts[1]);
    }
  }
}

TEST_F(ReportsTest, OverTheBodyThePageGivesTheTexts) {
  const BrowserProcess browser(std::string(kPlace) + "fruit");
  settings_.startNode = 4;
  ReportAt(browser, kOnlyBody);
  EXPECT_EQ(Table(), FRUIT_HEAD);
  EXPECT_EQ(Displayed(), L"果物の頁\r\n\r\n林檎\r\n蜜柑\r\n葡萄\r\n\r\n 店へ");
  EXPECT_EQ(Markup(), BODY_MARKUP);
  EXPECT_EQ(Shown(ViewText::txtWin1), L"　BODY");
}

TEST_F(ReportsTest, ElementsOfEveryKind) {
  struct Kind {
    const wchar_t* row;
    const wchar_t* textAtPoint;
  };
  constexpr Kind kKinds[] = {
      {L"INPUT   text        t           文字          ", L"文字"},
      {L"INPUT   password    p           secret      ", L"secret"},
      {L"INPUT   checkbox    c           on          ", L"on"},
      {L"INPUT   radio       r           2           ", L"2"},
      {L"INPUT   button      b           押す          ", L"押す"},
      {L"INPUT   submit      s           送信          ", L"送信"},
      {L"INPUT   reset                   取消          ", L"取消"},
      {L"INPUT   file        f           C:\\書類\\一.txt ", L"C:\\書類\\一.txt"},
      {L"INPUT   hidden      h           0           ", L"0"},
      {L"INPUT   image       i                       ", L""},
      {L"SELECT  select-one  choice      乙           ", L"乙"},
      {L"TEXTAREA textarea    memo        一行\r\n二行      一行二行", L"一行\r\n二行"},
      {L"BUTTON  submit      go                      行く", L"行く"},
      {L"LI                              0           項目", L"項目"},
      {L"LI                              7           七番", L"7"},
      {L"BLOCKQUOTE                                     引用二段", L"引用\r\n\r\n二段"},
      {L"SPAN                twelve-chars             ちょうど", L"ちょうど"},
      {L"SPAN                thirteen-char             一つ多い", L"一つ多い"},
      {L"INPUT   datetime-local number      2026-11-21T12 ", L"2026-11-21T12"},
      {L"IMG                 画像                      ", L""},
  };
  const BrowserProcess browser("place=40,40,400,420 kinds");
  POINT point = {200, kRowHeight / 2};
  for (const Kind& kind : kKinds) {
    ReportAt(browser, point);
    EXPECT_THAT(Table(), EndsWith(L"\r\n" + std::wstring(kind.row) + L"\r\n"));
    EXPECT_EQ(TextAtPoint(), kind.textAtPoint) << point.y;
    point.y += kRowHeight;
  }
}

TEST_F(ReportsTest, LongTextsAreCutInTheTable) {
  const std::wstring cells[] = {std::wstring(50, L'a'),           std::wstring(52, L'b'),
                                std::wstring(50, L'c') + L"...",  std::wstring(51, L'd'),
                                std::wstring(50, L'長') + L"...", std::wstring(49, L'e') + L"f..."};
  const BrowserProcess browser(std::string(kPlace) + "lengths");
  POINT point = {200, kRowHeight / 2};
  for (const std::wstring& cell : cells) {
    ReportAt(browser, point);
    EXPECT_THAT(Table(),
                EndsWith(L"\r\nP                                           " + cell + L"\r\n"));
    point.y += kRowHeight;
  }
  settings_.htmlTagTextLength = 3;
  ReportAt(browser, {200, kRowHeight / 2});
  EXPECT_THAT(Table(), EndsWith(L"\r\nP                                           aaa...\r\n"));
}

TEST_F(ReportsTest, AnElementInAFrameSet) {
  const BrowserProcess browser(std::string(kPlace) + "frameset");
  ReportAt(browser, {50, 10});
  EXPECT_EQ(Table(), URL_LABEL L"http://host.example/set" TABLE_HEAD
                     L"HTML                                        \r\n"
                     L"FRAMESET                                     \r\n"
                     L"FRAME               menu                    \r\n"
                     L"HTML                                        献立\r\n"
                     L"BODY                                        献立\r\n"
                     L"A                   entry                   献立\r\n");
  EXPECT_EQ(Shown(ViewText::txtWin1), L"menu　A");
  EXPECT_EQ(TextAtPoint(), L"献立");
}

TEST_F(ReportsTest, AnInlineFrameInAFrameSet) {
  const BrowserProcess browser(std::string(kPlace) + "frameset");
  ReportAt(browser, {160, 110});
  EXPECT_EQ(Table(), URL_LABEL L"http://host.example/set" TABLE_HEAD
                     L"HTML                                        \r\n"
                     L"FRAMESET                                     \r\n"
                     L"FRAME               body                    \r\n"
                     L"HTML                                        本文\r\n"
                     L"BODY                                        本文\r\n"
                     L"IFRAME              ad                      \r\n"
                     L"HTML                                        広告\r\n"
                     L"BODY                                        広告\r\n"
                     L"P                   pr                      広告\r\n");
  EXPECT_EQ(Shown(ViewText::txtWin1), L"body/ad　P");
  EXPECT_EQ(TextAtPoint(), L"広告");
}

// A body gives the texts of its own document, whichever frame that is in.
TEST_F(ReportsTest, TheBodyOfAFrame) {
  const BrowserProcess browser(std::string(kPlace) + "frameset");
  ReportAt(browser, {300, 280});
  EXPECT_EQ(Displayed(), L"本文");
  EXPECT_EQ(Markup(), L"<P>本文</P>");
  EXPECT_EQ(Shown(ViewText::txtWin1), L"body　BODY");
}

TEST_F(ReportsTest, OfUnnamedFramesTheFirstIsEntered) {
  const BrowserProcess browser(std::string(kPlace) + "unnamed");
  for (const LONG x : {50, 250}) {
    ReportAt(browser, {x, 50});
    EXPECT_EQ(Table(), URL_LABEL L"http://host.example/two" TABLE_HEAD
                       L"HTML                                        \r\n"
                       L"FRAMESET                                     \r\n"
                       L"FRAME                                       \r\n"
                       L"HTML                                        左\r\n"
                       L"BODY                                        左\r\n"
                       L"P                   左                       左\r\n");
    EXPECT_EQ(Shown(ViewText::txtWin1), L"FRAME　P");
  }
}

#define SCROLLED \
  URL_LABEL L"http://host.example/first" TABLE_HEAD                                  \
  L"HTML                                        \r\n"                               \
  L"BODY                                        \r\n"                               \
  L"IFRAME              first                   \r\n"                               \
  L"HTML                                        \r\n"                               \
  L"BODY                                        \r\n"                               \
  L"IFRAME              second                  \r\n"                               \
  L"HTML                                        \r\n"                               \
  L"BODY                                        \r\n"                               \
  L"IFRAME              third                   \r\n"                               \
  L"HTML                                        奥\r\n"                            \
  L"BODY                                        奥\r\n"

TEST_F(ReportsTest, FramesThatAreScrolledOutOfView) {
  const BrowserProcess browser(std::string(kPlace) + "scrolled");
  ReportAt(browser, {100, 80});
  EXPECT_EQ(Table(), SCROLLED L"P                   deep                    奥\r\n");
  EXPECT_EQ(Shown(ViewText::txtWin1), L"first/second/third　P");
  ReportAt(browser, {100, 95});
  EXPECT_EQ(Table(), SCROLLED);
}

// With a shift the read point selects the frame, and the pointer the element in it.
TEST_F(ReportsTest, WithAShiftTwoPointsCount) {
  const BrowserProcess browser(std::string(kPlace) + "scrolled");
  ReportAt(browser, {390, 290}, {-290, -210});
  EXPECT_EQ(Table(), SCROLLED);
  EXPECT_EQ(Shown(ViewText::txtWin1), L"first/second/third　BODY");
  // The read point is outside the frames, the pointer inside.
  ReportAt(browser, {100, 80}, {290, 210});
  EXPECT_EQ(Table(), SCROLLED L"P                   deep                    奥\r\n");
  EXPECT_EQ(Shown(ViewText::txtWin1), L"first/second/third　P");
}

TEST_F(ReportsTest, AnElementWithoutAParentIsItsOwnTop) {
  const BrowserProcess browser(std::string(kPlace) + "orphan");
  settings_.startNode = 3;
  ReportAt(browser, {100, 100});
  EXPECT_EQ(Table(), URL_LABEL L"http://host.example/orphan" TABLE_HEAD
                     L"P                                           孤児\r\n");
  EXPECT_EQ(Displayed(), L"孤児");
  EXPECT_EQ(Markup(), L"<B>孤児</B>");
}

TEST_F(ReportsTest, AChainOfManyElements) {
  const BrowserProcess browser(std::string(kPlace) + "chain=120");
  ReportAt(browser, {100, 100});
  EXPECT_EQ(Rows(), 120U);
  EXPECT_THAT(Table(), EndsWith(L"DIV                 d119                    葉\r\n"
                                L"B                   leaf                    葉\r\n"));
}

TEST_F(ReportsTest, ListsOfThePageBelongToItsDocument) {
  const BrowserProcess browser(std::string(kPlace) + "lists");
  for (const POINT point : {POINT{230, 220}, POINT{230, 250}}) {
    ReportAt(browser, point);
    EXPECT_EQ(Table(), FRUIT_HEAD);
    EXPECT_EQ(capture_.state.BottomTexts[0], L"1");
    EXPECT_EQ(Shown(ViewText::txtWin1), L"　BODY");
  }
  EXPECT_EQ(Shown(ViewText::txtWin0), L"Internet Explorer_TridentLstBox");
}

TEST_F(ReportsTest, SilverlightIsReadAsAPage) {
  const BrowserProcess browser(std::string(kPlace) + "silverlight");
  ReportAt(browser, kItem);
  EXPECT_EQ(Table(), FRUIT_HEAD FRUIT_LIST L"LI                              0           蜜柑\r\n");
  // Its window is not one of the browser's, so the text at the point is not the element's.
  EXPECT_EQ(TextAtPoint(), L"");
}

// The document is requested once for the text at the point and once for the table.
TEST_F(ReportsTest, ADocumentIsFoundByOneOfTwoRequests) {
  const BrowserProcess plain(std::string(kPlace) + "fruit");
  ReportAt(plain, kItem);
  EXPECT_EQ(plain.Requests(), 2);
  for (const char* const scene : {"bare", "second"}) {
    const BrowserProcess browser(std::string(kPlace) + scene);
    ReportAt(browser, kItem);
    EXPECT_EQ(Table(),
              FRUIT_HEAD FRUIT_LIST L"LI                              0           蜜柑\r\n")
        << scene;
    EXPECT_EQ(TextAtPoint(), L"蜜柑") << scene;
    EXPECT_EQ(Shown(ViewText::lblMsg), L"") << scene;
  }
}

// The number of other holders of the description.
ULONG HoldersOfDescription() {
  constexpr GUID kLibrary = {
      0x3050F1C5, 0x98B5, 0x11CF, {0xBB, 0x82, 0x00, 0xAA, 0x00, 0xBD, 0xCE, 0x0B}};
  Microsoft::WRL::ComPtr<ITypeLib> library;
  EXPECT_EQ(LoadRegTypeLib(kLibrary, 4, 0, 0, library.GetAddressOf()), S_OK);
  library->AddRef();
  return library->Release() - 1;
}

// Loading it for every report would take many times as long as the report.
TEST_F(ReportsTest, TheDescriptionOfTheInterfacesStaysLoaded) {
  EXPECT_EQ(HoldersOfDescription(), 0U);
  const BrowserProcess browser(std::string(kPlace) + "fruit");
  ReportAt(browser, kItem);
  EXPECT_GT(HoldersOfDescription(), 0U);
}

}  // namespace
}  // namespace html
