#include "browser/PageReading.h"

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

class PageReadingTest : public testing::Test {
 protected:
  explicit PageReadingTest(const DocumentData& data = Framed()) : page_(data) {
    fake_.served = &page_.Top();
    fake_.windowPlace = {1000, 2000, 1400, 2300};
  }
  ~PageReadingTest() override { EXPECT_EQ(page_.References(), 0); }

  // Reads the page with the pointer at that point; its texts are in texts_.
  std::optional<PageFacts> Read(POINT inPage, std::int32_t startNode = 0) {
    fake_.pointer = {1000 + inPage.x, 2000 + inPage.y};
    return ReadFrom(fake_.pointer, startNode);
  }
  std::optional<PageFacts> ReadFrom(POINT readPoint, std::int32_t startNode = 0) {
    return ReadPage(
        {reinterpret_cast<HWND>(7), readPoint, startNode, 50, [](const std::wstring&) {},
         [this](const PageTexts& texts) { texts_ = texts; }},
        fake_.access, session_.Session());
  }
  PageFacts Facts(POINT inPage) { return Read(inPage).value(); }
  PageTexts Texts(POINT inPage, std::int32_t startNode = 0) {
    Read(inPage, startNode);
    return texts_;
  }

  static std::vector<std::wstring> Tags(const PageFacts& facts) {
    std::vector<std::wstring> tags;
    for (const ElementFacts& element : facts.chain) tags.push_back(element.tag);
    return tags;
  }

  html::Page page_;
  FakeBrowser fake_;
  FakeSession session_;
  PageTexts texts_{L"(none)", L"(none)"};
  MessageBoxes boxes_;
};

TEST_F(PageReadingTest, TheChainLeadsOutOfTheFrames) {
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

TEST_F(PageReadingTest, TheChainOfADocumentInAFrameLeadsOutToo) {
  fake_.served = page_.WindowNamed("out").content;
  const PageFacts facts = Facts({50, 50});
  EXPECT_EQ(facts.url, L"middle");
  EXPECT_EQ(facts.framePath, L"out/FRAME");
  EXPECT_THAT(Tags(facts), ElementsAre(L"HTML", L"BODY", L"IFRAME", L"FRAMESET", L"FRAME", L"HTML",
                                       L"BODY", L"BUTTON"));
}

TEST_F(PageReadingTest, AnUnreadableEnclosingPageEndsTheChain) {
  fake_.served = page_.WindowNamed("out").content;
  page_.watch.failures["window out.parent"] = E_ACCESSDENIED;
  const PageFacts facts = Facts({50, 50});
  EXPECT_EQ(facts.framePath, L"FRAME");
  EXPECT_EQ(facts.chain.front().tag, L"FRAMESET");
  EXPECT_FALSE(facts.interrupted);
  EXPECT_THAT(boxes_.shown, IsEmpty());
}

TEST_F(PageReadingTest, UnreadableFramesEndTheChainToo) {
  fake_.served = page_.WindowNamed("out").content;
  for (const char* call : {"document http://top/.frames", "window out.frameElement"}) {
    page_.watch.failures = {{call, E_FAIL}};
    EXPECT_EQ(Facts({50, 50}).chain.front().tag, L"FRAMESET") << call;
  }
  EXPECT_THAT(boxes_.shown, IsEmpty());
}

TEST_F(PageReadingTest, AnElementWithoutParentsIsFollowedByTheFrameAroundIt) {
  page_.At("Button#ok").parent = nullptr;
  const PageFacts facts = Facts({50, 50});
  EXPECT_THAT(Tags(facts),
              ElementsAre(L"HTML", L"BODY", L"IFRAME", L"FRAMESET", L"FRAME", L"BUTTON"));
  EXPECT_EQ(facts.framePath, L"out/FRAME");
}

TEST_F(PageReadingTest, EndlessParentsEnd) {
  html::Element& root = page_.At("HTML");
  root.parent = &root;
  EXPECT_EQ(Facts({50, 50}).chain.size(), 256U);
}

TEST_F(PageReadingTest, YieldsAfterEveryElement) {
  Facts({50, 50});
  EXPECT_EQ(session_.yields, 8);
}

TEST_F(PageReadingTest, StopsWhenThePointerLeavesThePage) {
  session_.moveOnAfter = 3;
  const PageFacts facts = Facts({50, 50});
  EXPECT_TRUE(facts.interrupted);
  EXPECT_THAT(Tags(facts), ElementsAre(L"HTML", L"BODY", L"BUTTON"));
  EXPECT_EQ(facts.framePath, L"");
}

TEST_F(PageReadingTest, APageThatThePointerLeftBeforeHasNoRows) {
  session_.GoElsewhere();
  const PageFacts facts = Facts({50, 50});
  EXPECT_TRUE(facts.interrupted);
  EXPECT_THAT(facts.chain, IsEmpty());
}

TEST_F(PageReadingTest, StopsWhenTheCaptureEnds) {
  session_.endAfter = 1;
  EXPECT_THAT(Tags(Facts({50, 50})), ElementsAre(L"BUTTON"));
}

TEST_F(PageReadingTest, ThereAreNoRowsWhereNoElementIs) {
  const PageFacts facts = Facts({500, 500});
  EXPECT_EQ(facts.url, L"http://top/");
  EXPECT_THAT(facts.chain, IsEmpty());
  const PageTexts texts = Texts({500, 500});
  EXPECT_EQ(texts.displayed, L"");
  EXPECT_EQ(texts.markup, L"");
}

TEST_F(PageReadingTest, ThereIsNoPageWithoutADocument) {
  fake_.answer = 0;
  EXPECT_FALSE(Read({50, 50}));
  EXPECT_EQ(texts_.displayed, L"(none)");
}

TEST_F(PageReadingTest, TheTextsAreThoseOfTheElement) {
  const PageTexts texts = Texts({50, 50});
  EXPECT_EQ(texts.displayed, L"押\r\nす");
  EXPECT_EQ(texts.markup, L"押<br>す");
}

TEST_F(PageReadingTest, TheTextsMayBeThoseOfAnAncestor) {
  const PageTexts texts = Texts({50, 50}, 1);
  EXPECT_EQ(texts.displayed, L"内の体");
  EXPECT_EQ(texts.markup, L"<内>");
  EXPECT_EQ(Texts({50, 50}, 3).displayed, L"");
}

TEST_F(PageReadingTest, AnElementWithoutParentsGivesItsOwnTexts) {
  page_.At("Button#ok").parent = nullptr;
  EXPECT_EQ(Texts({50, 50}, 1).displayed, L"押\r\nす");
}

TEST_F(PageReadingTest, OverTheBodyTheTextsAreThoseOfItsDocument) {
  const PageTexts texts = Texts({250, 250}, 1);
  EXPECT_EQ(texts.displayed, L"内の体");
  EXPECT_EQ(texts.markup, L"<内>");
  EXPECT_THAT(page_.watch.calls, Contains("document deep.body"));
}

TEST_F(PageReadingTest, TheReadPointSelectsTheFrameAndThePointerTheElement) {
  // The read point is in the enclosing page; so is the pointer, but over the frame.
  page_.At("IFRAME#out").document = &page_.Top();
  fake_.pointer = {1050, 2050};
  const PageFacts facts = ReadFrom({1500, 2500}).value();
  EXPECT_THAT(facts.chain, IsEmpty());
  EXPECT_THAT(page_.watch.calls, Contains("document http://top/.elementFromPoint 500,500"));
  EXPECT_THAT(fake_.calls, Not(Contains("pointer")));
}

class TwoFramesTest : public PageReadingTest {
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
      : PageReadingTest({.url = L"set",
                         .root = {.tag = L"FRAMESET",
                                  .place = {0, 0, 200, 100},
                                  .children = {Frame(L"left", {0, 0, 100, 100}),
                                               Frame(L"right", {100, 0, 200, 100})}}}) {}
};

TEST_F(TwoFramesTest, TheReadPointSelectsTheFrameAndThePointerThePlaceInIt) {
  fake_.pointer = {1050, 2050};
  const PageFacts facts = ReadFrom({1150, 2050}).value();
  EXPECT_EQ(facts.framePath, L"right");
  // The pointer is 50 to the left of that frame.
  EXPECT_EQ(facts.chain.back().idOrName, L"right-west");
  EXPECT_EQ(Facts({50, 50}).chain.back().idOrName, L"left-east");
}

}  // namespace
}  // namespace MyInternetexplore
