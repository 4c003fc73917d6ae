#include "browser/OpenPage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "../browser/Page.h"
#include "FakeBrowser.h"
#include "FakeSession.h"
#include "MessageBoxes.h"

namespace MyInternetexplore {
namespace {

using html::DocumentData;
using html::ElementData;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

constexpr RECT kAll = {0, 0, 400, 300};

// A page in a frame without a name in the frame "out".
DocumentData Framed() {
  ElementData button{.tag = L"Button",
                     .id = L"ok",
                     .type = L"submit",
                     .value = L"値",
                     .text = L"押\r\nす",
                     .markup = L"押<br>す",
                     .place = {0, 0, 200, 200}};
  DocumentData deep{.url = L"deep",
                    .root = {.tag = L"HTML",
                             .children = {{.tag = L"BODY",
                                           .text = L"内の体",
                                           .markup = L"<内>",
                                           .place = {0, 0, 300, 300},
                                           .children = {std::move(button)}}}}};
  DocumentData middle{
      .url = L"middle",
      .root = {
          .tag = L"FRAMESET",
          .place = kAll,
          .children = {{.tag = L"FRAME", .name = L"", .place = kAll, .frame = {std::move(deep)}}}}};
  return {.url = L"http://top/",
          .root = {.tag = L"HTML",
                   .children = {{.tag = L"BODY",
                                 .text = L"外の体",
                                 .place = kAll,
                                 .children = {{.tag = L"IFRAME",
                                               .id = L"out",
                                               .name = L"out",
                                               .place = kAll,
                                               .frame = {std::move(middle)}}}}}}};
}

class OpenPageTest : public testing::Test {
 protected:
  explicit OpenPageTest(const DocumentData& data = Framed()) : page_(data) {
    fake_.served = &page_.Top();
    fake_.windowPlace = {1000, 2000, 1400, 2300};
  }
  ~OpenPageTest() override { EXPECT_EQ(page_.References(), 0); }

  std::unique_ptr<PageReader> Open(POINT inPage, PageOptions options = {0, 50}) {
    fake_.pointer = {1000 + inPage.x, 2000 + inPage.y};
    return OpenPage(reinterpret_cast<HWND>(7), fake_.pointer, options, fake_.access);
  }
  PageFacts Facts(POINT inPage) { return Open(inPage)->Facts(session_.Session()); }

  static std::vector<std::wstring> Tags(const PageFacts& facts) {
    std::vector<std::wstring> tags;
    for (const ElementFacts& element : facts.chain) tags.push_back(element.tag);
    return tags;
  }

  html::Page page_;
  FakeBrowser fake_;
  FakeSession session_;
  MessageBoxes boxes_;
};

TEST_F(OpenPageTest, TheChainLeadsOutOfTheFrames) {
  const PageFacts facts = Facts({50, 50});
  EXPECT_EQ(facts.url, L"http://top/");
  EXPECT_EQ(facts.framePath, L"out/FRAME");
  EXPECT_THAT(Tags(facts), ElementsAre(L"HTML", L"BODY", L"IFRAME", L"FRAMESET", L"FRAME", L"HTML",
                                       L"BODY", L"BUTTON"));
  EXPECT_FALSE(facts.interrupted);
  const ElementFacts& button = facts.chain.back();
  EXPECT_EQ(button.type, L"submit");
  EXPECT_EQ(button.idOrName, L"ok");
  EXPECT_EQ(button.value, L"値");
  EXPECT_EQ(button.text, L"押す");
}

TEST_F(OpenPageTest, TheWindowOfADocumentInAFrameLeadsOutToo) {
  fake_.served = page_.WindowNamed("out").content;
  const PageFacts facts = Facts({50, 50});
  EXPECT_EQ(facts.url, L"middle");
  EXPECT_EQ(facts.framePath, L"out/FRAME");
  EXPECT_THAT(Tags(facts), ElementsAre(L"HTML", L"BODY", L"IFRAME", L"FRAMESET", L"FRAME", L"HTML",
                                       L"BODY", L"BUTTON"));
}

TEST_F(OpenPageTest, AnUnreadablePageAroundEndsTheWay) {
  fake_.served = page_.WindowNamed("out").content;
  page_.watch.failures["window out.parent"] = E_ACCESSDENIED;
  const PageFacts facts = Facts({50, 50});
  EXPECT_EQ(facts.framePath, L"FRAME");
  EXPECT_EQ(facts.chain.front().tag, L"FRAMESET");
  EXPECT_FALSE(facts.interrupted);
  EXPECT_THAT(boxes_.shown, IsEmpty());
}

TEST_F(OpenPageTest, FramesThatCannotBeReadEndTheWayToo) {
  fake_.served = page_.WindowNamed("out").content;
  for (const char* call : {"document http://top/.frames", "window out.frameElement"}) {
    page_.watch.failures = {{call, E_FAIL}};
    EXPECT_EQ(Facts({50, 50}).chain.front().tag, L"FRAMESET") << call;
  }
  EXPECT_THAT(boxes_.shown, IsEmpty());
}

TEST_F(OpenPageTest, AnElementWithoutParentsIsFollowedByTheFrameAroundIt) {
  page_.At("Button#ok").parent = nullptr;
  const PageFacts facts = Facts({50, 50});
  EXPECT_THAT(Tags(facts),
              ElementsAre(L"HTML", L"BODY", L"IFRAME", L"FRAMESET", L"FRAME", L"BUTTON"));
  EXPECT_EQ(facts.framePath, L"out/FRAME");
}

TEST_F(OpenPageTest, ParentsWithoutEndEnd) {
  html::Element& root = page_.At("HTML");
  root.parent = &root;
  EXPECT_EQ(Facts({50, 50}).chain.size(), 256U);
}

TEST_F(OpenPageTest, YieldsAfterEveryElement) {
  Facts({50, 50});
  EXPECT_EQ(session_.yields, 8);
}

TEST_F(OpenPageTest, StopsWhenThePointerLeavesThePage) {
  session_.moveOnAfter = 3;
  const PageFacts facts = Facts({50, 50});
  EXPECT_TRUE(facts.interrupted);
  EXPECT_THAT(Tags(facts), ElementsAre(L"HTML", L"BODY", L"BUTTON"));
  EXPECT_EQ(facts.framePath, L"");
}

TEST_F(OpenPageTest, APageThatThePointerLeftBeforeHasNoRows) {
  const platform::ReadSession session = session_.Session();
  session_.GoElsewhere();
  const PageFacts facts = Open({50, 50})->Facts(session);
  EXPECT_TRUE(facts.interrupted);
  EXPECT_THAT(facts.chain, IsEmpty());
}

TEST_F(OpenPageTest, StopsWhenTheCaptureEnds) {
  session_.endAfter = 1;
  EXPECT_THAT(Tags(Facts({50, 50})), ElementsAre(L"BUTTON"));
}

TEST_F(OpenPageTest, ThereAreNoRowsWhereNoElementIs) {
  const PageFacts facts = Facts({500, 500});
  EXPECT_EQ(facts.url, L"http://top/");
  EXPECT_THAT(facts.chain, IsEmpty());
  const PageTexts texts = Open({500, 500})->Texts();
  EXPECT_EQ(texts.displayed, L"");
  EXPECT_EQ(texts.markup, L"");
}

TEST_F(OpenPageTest, ThereIsNoPageWithoutADocument) {
  fake_.answer = 0;
  EXPECT_EQ(Open({50, 50}), nullptr);
}

TEST_F(OpenPageTest, TheTextsAreThoseOfTheElement) {
  const PageTexts texts = Open({50, 50})->Texts();
  EXPECT_EQ(texts.displayed, L"押\r\nす");
  EXPECT_EQ(texts.markup, L"押<br>す");
}

TEST_F(OpenPageTest, OrOfTheAncestorThatIsAskedFor) {
  const PageTexts texts = Open({50, 50}, {1, 50})->Texts();
  EXPECT_EQ(texts.displayed, L"内の体");
  EXPECT_EQ(texts.markup, L"<内>");
  EXPECT_EQ(Open({50, 50}, {3, 50})->Texts().displayed, L"");
}

TEST_F(OpenPageTest, AnElementWithoutParentsGivesItsOwnTexts) {
  page_.At("Button#ok").parent = nullptr;
  EXPECT_EQ(Open({50, 50}, {1, 50})->Texts().displayed, L"押\r\nす");
}

TEST_F(OpenPageTest, OverTheBodyTheTextsAreThoseOfItsDocument) {
  const PageTexts texts = Open({250, 250}, {1, 50})->Texts();
  EXPECT_EQ(texts.displayed, L"内の体");
  EXPECT_EQ(texts.markup, L"<内>");
  EXPECT_THAT(page_.watch.calls, Contains("document deep.body"));
}

TEST_F(OpenPageTest, TheFrameIsThatOfTheReadPointAndTheElementThatOfThePointer) {
  // Read is a point in the page around; the pointer is in it, too, but over the frame.
  page_.At("IFRAME#out").document = &page_.Top();
  fake_.pointer = {1050, 2050};
  const auto page = OpenPage(reinterpret_cast<HWND>(7), {1500, 2500}, {0, 50}, fake_.access);
  EXPECT_THAT(page->Facts(session_.Session()).chain, IsEmpty());
  EXPECT_THAT(page_.watch.calls, Contains("document http://top/.elementFromPoint 500,500"));
  EXPECT_THAT(fake_.calls, Not(Contains("pointer")));
}

class TwoFramesTest : public OpenPageTest {
 protected:
  static ElementData Frame(std::wstring name, RECT place) {
    return {.tag = L"FRAME",
            .name = name,
            .place = place,
            .frame = {
                {.url = name,
                 .root = {.tag = L"HTML",
                          .place = {-100, -100, 100, 100},
                          .children = {
                              {.tag = L"P", .id = name + L"-west", .place = {-100, 0, 0, 100}},
                              {.tag = L"P", .id = name + L"-east", .place = {0, 0, 100, 100}}}}}}};
  }
  TwoFramesTest()
      : OpenPageTest({.url = L"set",
                      .root = {.tag = L"FRAMESET",
                               .place = {0, 0, 200, 100},
                               .children = {Frame(L"left", {0, 0, 100, 100}),
                                            Frame(L"right", {100, 0, 200, 100})}}}) {}
};

TEST_F(TwoFramesTest, WithAReadPointAsideTheFrameIsItsAndThePlaceInItThePointers) {
  fake_.pointer = {1050, 2050};
  const auto aside = OpenPage(reinterpret_cast<HWND>(7), {1150, 2050}, {0, 50}, fake_.access);
  const PageFacts facts = aside->Facts(session_.Session());
  EXPECT_EQ(facts.framePath, L"right");
  // The pointer is 50 to the left of that frame.
  EXPECT_EQ(facts.chain.back().idOrName, L"right-west");
  EXPECT_EQ(Facts({50, 50}).chain.back().idOrName, L"left-east");
}

}  // namespace
}  // namespace MyInternetexplore
