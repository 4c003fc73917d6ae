#include "browser/ElementReaders.h"

#include <gtest/gtest.h>

#include "../browser/Page.h"
#include "MessageBoxes.h"

namespace MyInternetexplore {
namespace {

html::DocumentData Page() {
  return {.url = L"http://host/",
          .root = {.tag = L"HTML",
                   .text = L"全て",
                   .markup = L"<body>",
                   .children = {{.tag = L"Body",
                                 .text = L"体",
                                 .markup = L"<li>",
                                 .children = {{.tag = L"LI",
                                               .id = L"項",
                                               .name = L"名",
                                               .type = L"disc",
                                               .value = 0L,
                                               .text = L"一\r\n二\n三\r\n\r\n四",
                                               .markup = L"一<br>"},
                                              {.tag = L"INPUT", .name = L"名前", .value = L"値"},
                                              {.tag = L"P"}}}}}};
}

class ElementReadersTest : public testing::Test {
 protected:
  ~ElementReadersTest() override { EXPECT_EQ(page_.References(), 0); }

  html::Page page_{Page()};
  html::Element& item_ = page_.At("LI#項");
  html::Element& input_ = page_.At("INPUT@名前");
  html::Element& plain_ = page_.At("P");
};

TEST_F(ElementReadersTest, ReadTheMembersOfTheirNames) {
  EXPECT_EQ(GetElTagName(&item_), L"LI");
  EXPECT_EQ(GetElTagName(&page_.At("Body")), L"Body");
  EXPECT_EQ(UpperTagName(&page_.At("Body")), L"BODY");
  EXPECT_EQ(GetElType(&item_), L"disc");
  EXPECT_EQ(GetElInnerText(&item_), L"一\r\n二\n三\r\n\r\n四");
  EXPECT_EQ(GetUrl(&page_.Top()), L"http://host/");
  EXPECT_EQ(GetBody(&page_.Top()), nullptr);  // this page writes its tag differently
}

TEST_F(ElementReadersTest, TheIdGoesBeforeTheName) {
  EXPECT_EQ(GetElIdOrName(&item_), L"項");
  EXPECT_EQ(GetElIdOrName(&input_), L"名前");
  EXPECT_EQ(GetElIdOrName(&plain_), L"");
}

TEST_F(ElementReadersTest, AttributesBecomeTexts) {
  EXPECT_EQ(GetElValue(&input_), L"値");
  EXPECT_EQ(GetElValue(&item_), L"0");  // a number
  EXPECT_EQ(GetElValue(&plain_), L"");  // null
  EXPECT_EQ(GetElType(&plain_), L"");
}

TEST_F(ElementReadersTest, TheStartOfATextHasNoLineEnds) {
  EXPECT_EQ(StartOfInnerText(&item_, 100), L"一二\n三四");
  EXPECT_EQ(StartOfInnerText(&item_, 4), L"一二\n三");
  EXPECT_EQ(StartOfInnerText(&item_, 2), L"一二");
  EXPECT_EQ(StartOfInnerText(&item_, 0), L"");
  EXPECT_EQ(StartOfInnerText(&plain_, 5), L"");
}

TEST_F(ElementReadersTest, ParentsEndAtTheRoot) {
  EXPECT_EQ(GetElParent(&item_).Get(), &page_.At("Body"));
  EXPECT_EQ(GetElParent(&page_.At("HTML")), nullptr);
  EXPECT_EQ(GetElDocument(&item_).Get(), &page_.Top());
  EXPECT_EQ(GetParentDocument(&page_.Top()).Get(), &page_.Top());
}

TEST_F(ElementReadersTest, AncestorsGiveTheirTexts) {
  EXPECT_EQ(GetAncestorInnerText(&item_, -1), L"一\r\n二\n三\r\n\r\n四");
  EXPECT_EQ(GetAncestorInnerText(&item_, 0), L"一\r\n二\n三\r\n\r\n四");
  EXPECT_EQ(GetAncestorInnerText(&item_, 1), L"体");
  EXPECT_EQ(GetAncestorInnerText(&item_, 2), L"全て");
  EXPECT_EQ(GetAncestorInnerText(&item_, 3), L"");
  EXPECT_EQ(GetAncestorInnerHtml(&item_, 0), L"一<br>");
  EXPECT_EQ(GetAncestorInnerHtml(&item_, 1), L"<li>");
  EXPECT_EQ(GetAncestorInnerHtml(&item_, 3), L"");
}

TEST_F(ElementReadersTest, TheSearchForAnAncestorEnds) {
  html::Element& root = page_.At("HTML");
  root.parent = &root;
  EXPECT_EQ(GetAncestorInnerText(&root, 256), L"全て");
  page_.watch.callCount = 0;
  EXPECT_EQ(GetAncestorInnerText(&root, 2'000'000'000), L"");
  EXPECT_LT(page_.watch.callCount, 300U);
}

TEST_F(ElementReadersTest, FailingMembersAreEmptyWithoutAMessage) {
  page_.watch.failures[""] = E_FAIL;
  MessageBoxes boxes;
  EXPECT_EQ(GetElTagName(&item_), L"");
  EXPECT_EQ(GetElIdOrName(&item_), L"");
  EXPECT_EQ(GetElType(&item_), L"");
  EXPECT_EQ(GetElValue(&item_), L"");
  EXPECT_EQ(GetElInnerText(&item_), L"");
  EXPECT_EQ(StartOfInnerText(&item_, 5), L"");
  EXPECT_EQ(GetElParent(&item_), nullptr);
  EXPECT_EQ(GetElDocument(&item_), nullptr);
  EXPECT_EQ(GetParentDocument(&page_.Top()), nullptr);
  EXPECT_EQ(GetBody(&page_.Top()), nullptr);
  EXPECT_EQ(GetUrl(&page_.Top()), L"");
  EXPECT_EQ(GetAncestorInnerText(&item_, 1), L"");
  EXPECT_EQ(GetAncestorInnerHtml(&item_, 0), L"");
  EXPECT_TRUE(boxes.shown.empty());
}

}  // namespace
}  // namespace MyInternetexplore
