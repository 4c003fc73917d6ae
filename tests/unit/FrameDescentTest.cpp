#include "browser/FrameDescent.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "../browser/Page.h"
#include "FakeBrowser.h"
#include "MessageBoxes.h"
#include "browser/ElementReaders.h"

namespace MyInternetexplore {
namespace {

using html::DocumentData;
using html::ElementData;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

DocumentData Content(std::wstring name, RECT place) {
  return {.url = L"http://" + name, .root = {.tag = L"P", .id = std::move(name), .place = place}};
}

// A frame at place that shows a paragraph over all of a large document.
ElementData Frame(ElementData frame, RECT place, std::wstring content) {
  frame.place = place;
  frame.frame = {Content(std::move(content), {-2000, -2000, 2000, 2000})};
  return frame;
}

DocumentData With(std::vector<ElementData> elements) {
  return {.url = L"top",
          .root = {.tag = L"HTML", .place = {0, 0, 400, 400}, .children = std::move(elements)}};
}

constexpr RECT kLeft = {0, 0, 100, 100};
constexpr RECT kRight = {100, 0, 200, 100};

class FrameDescentTest : public testing::Test {
 protected:
  // The id of the innermost document's element under the read point; "none" without a document.
  std::wstring Resolve(html::Page& page, POINT point) {
    {
      frames_.clear();
      const DocumentPtr document =
          ResolveFrameDocument(point, {0, 0}, &page.Top(), origin_, frames_, Note());
      resolved_ = document ? GetUrl(document.Get()) : L"none";
      frames_.clear();
    }
    EXPECT_EQ(page.References(), 0);
    return resolved_;
  }

  // The tag and id of the element under the pointer; "none" without one.
  std::wstring Find(html::Page& page, POINT pointer, POINT origin = {0, 0}) {
    fake_.pointer = pointer;
    std::wstring found = L"none";
    {
      const ElementPtr element = GetElFromPoint(origin, &page.Top(), origin_, frames_, fake_);
      if (element) found = GetElTagName(element.Get()) + L"#" + GetElIdOrName(element.Get());
      frames_.clear();
    }
    EXPECT_EQ(page.References(), 0);
    return found;
  }

  ShowMessage Note() {
    return [this](const std::wstring& text) { messages_.push_back(text); };
  }

  FakeBrowser fake_;
  MessageBoxes boxes_;
  std::vector<std::wstring> messages_;  // messages to the user other than boxes
  FrameTrail frames_;
  POINT origin_{-1, -1};
  std::wstring resolved_;
};

TEST_F(FrameDescentTest, WithoutFramesItIsTheDocumentItself) {
  html::Page page(With({{.tag = L"P", .place = kLeft}}));
  FrameTrail trail;
  const DocumentPtr document =
      ResolveFrameDocument({50, 60}, {10, 20}, &page.Top(), origin_, trail, Note());
  EXPECT_EQ(document.Get(), &page.Top());
  EXPECT_EQ(origin_.x, 10);
  EXPECT_EQ(origin_.y, 20);
  EXPECT_THAT(trail, IsEmpty());
  EXPECT_EQ(page.watch.calls.front(), "document top.elementFromPoint 40,40");
}

TEST_F(FrameDescentTest, TheReadPointFindsFramesByIdOrName) {
  html::Page page(With({Frame({.tag = L"FRAME", .id = L"menu", .windowName = L"menu"}, kLeft, L"a"),
                        Frame({.tag = L"IFRAME", .name = L"body"}, kRight, L"b")}));
  EXPECT_EQ(Resolve(page, {50, 50}), L"http://a");
  EXPECT_EQ(Resolve(page, {150, 50}), L"http://b");
  EXPECT_EQ(origin_.x, 100);
  EXPECT_EQ(Resolve(page, {300, 300}), L"top");
}

TEST_F(FrameDescentTest, TheIdComesBeforeTheName) {
  html::Page page(With({Frame({.tag = L"FRAME", .id = L"id", .name = L"name"}, kLeft, L"a")}));
  EXPECT_EQ(Resolve(page, {50, 50}), L"none");
  EXPECT_EQ(Find(page, {50, 50}), L"P#a");
}

TEST_F(FrameDescentTest, ThePointerFindsFramesByNameOnly) {
  html::Page page(With(
      {Frame({.tag = L"FRAME", .id = L"menu", .name = L"", .windowName = L"menu"}, kLeft, L"a")}));
  EXPECT_EQ(Resolve(page, {50, 50}), L"http://a");
  // The frame element itself is found when no frame matches it.
  EXPECT_EQ(Find(page, {50, 50}), L"FRAME#menu");
  EXPECT_THAT(boxes_.shown, IsEmpty());
}

TEST_F(FrameDescentTest, TagsAreFramesInUpperCaseOnly) {
  html::Page page(With({Frame({.tag = L"frame", .name = L"a"}, kLeft, L"a"),
                        Frame({.tag = L"Iframe", .name = L"b"}, kRight, L"b")}));
  EXPECT_EQ(Resolve(page, {50, 50}), L"top");
  EXPECT_EQ(Resolve(page, {150, 50}), L"top");
  EXPECT_EQ(Find(page, {50, 50}), L"frame#a");
  EXPECT_EQ(Find(page, {150, 50}), L"Iframe#b");
}

TEST_F(FrameDescentTest, NamesAreComparedExactly) {
  html::Page page(With({Frame({.tag = L"FRAME", .name = L"a", .windowName = L"A"}, kLeft, L"a")}));
  EXPECT_EQ(Resolve(page, {50, 50}), L"none");
  EXPECT_EQ(Find(page, {50, 50}), L"FRAME#a");
}

TEST_F(FrameDescentTest, TheFirstFrameOfTheNameIsTaken) {
  html::Page page(With({Frame({.tag = L"FRAME", .name = L"twin"}, kLeft, L"first"),
                        Frame({.tag = L"FRAME", .name = L"twin"}, kRight, L"second")}));
  EXPECT_EQ(Resolve(page, {150, 50}), L"http://first");
  EXPECT_EQ(Find(page, {150, 50}), L"P#first");
}

TEST_F(FrameDescentTest, OfUnnamedFramesTheFirstIsAlwaysEntered) {
  html::Page page(With({Frame({.tag = L"FRAME", .name = L""}, kLeft, L"first"),
                        Frame({.tag = L"FRAME", .name = L""}, kRight, L"second")}));
  EXPECT_EQ(Resolve(page, {150, 50}), L"http://first");
  EXPECT_EQ(Find(page, {150, 50}), L"P#first");
  // With the origin of the second.
  EXPECT_EQ(origin_.x, 100);
}

TEST_F(FrameDescentTest, AFrameThatKnowsNoNameCountsAsUnnamed) {
  html::Page page(With({Frame({.tag = L"IFRAME"}, kLeft, L"inside")}));
  EXPECT_EQ(Resolve(page, {50, 50}), L"http://inside");
  EXPECT_EQ(Find(page, {50, 50}), L"P#inside");
}

TEST_F(FrameDescentTest, NestedFramesMoveTheOriginOneByOne) {
  ElementData inner = Frame({.tag = L"IFRAME", .name = L"in"}, {-30, -40, 300, 300}, L"deep");
  ElementData outer{.tag = L"IFRAME",
                    .name = L"out",
                    .place = {100, 50, 300, 300},
                    .frame = {{.url = L"middle",
                               .root = {.tag = L"HTML",
                                        .place = {-900, -900, 900, 900},
                                        .children = {std::move(inner)}}}}};
  html::Page page(With({std::move(outer)}));
  FrameTrail trail;
  {
    const DocumentPtr document =
        ResolveFrameDocument({1150, 2100}, {1000, 2000}, &page.Top(), origin_, trail, Note());
    EXPECT_EQ(GetUrl(document.Get()), L"http://deep");
  }
  EXPECT_EQ(origin_.x, 1000 + 100 - 30);
  EXPECT_EQ(origin_.y, 2000 + 50 - 40);
  ASSERT_EQ(trail.size(), 2U);
  EXPECT_EQ(GetElIdOrName(trail[0].Get()), L"out");
  EXPECT_EQ(GetElIdOrName(trail[1].Get()), L"in");
  trail.clear();

  EXPECT_EQ(Find(page, {1150, 2100}, {1000, 2000}), L"P#deep");
  EXPECT_EQ(origin_.x, 1070);
  EXPECT_EQ(origin_.y, 2010);
}

TEST_F(FrameDescentTest, TheElementIsSoughtAtTheRawPointer) {
  html::Page page(With({{.tag = L"P", .id = L"here", .place = kLeft},
                        {.tag = L"P", .id = L"there", .place = kRight}}));
  EXPECT_EQ(Find(page, {1150, 50}, {1000, 0}), L"P#there");
  EXPECT_EQ(page.watch.calls.front(), "document top.elementFromPoint 150,50");
}

TEST_F(FrameDescentTest, NothingAtThePointIsNothing) {
  html::Page page(With({}));
  EXPECT_EQ(Resolve(page, {900, 900}), L"none");
  EXPECT_EQ(Find(page, {900, 900}), L"none");
  EXPECT_THAT(boxes_.shown, IsEmpty());
}

TEST_F(FrameDescentTest, NumbersBeyond32BitsWrapAround) {
  constexpr LONG kMost = std::numeric_limits<LONG>::max();
  html::Page page(With({Frame({.tag = L"IFRAME", .name = L"far"}, {0, 0, kMost, kMost}, L"in")}));
  EXPECT_EQ(Resolve(page, {kMost, 5}), L"none");
  EXPECT_EQ(Find(page, {std::numeric_limits<LONG>::min(), 5}, {1, 0}), L"none");
}

struct Failure {
  const char* call;
  HRESULT code;  // S_FALSE: the call succeeds and gives no object
  HRESULT reported = code;
};

class FrameFailureTest : public FrameDescentTest, public testing::WithParamInterface<Failure> {};

TEST_P(FrameFailureTest, EndsBothDescentsAndEachReportsIt) {
  html::Page page(With({Frame({.tag = L"FRAME", .name = L"a"}, kLeft, L"a")}));
  page.watch.failures[GetParam().call] = GetParam().code;
  const std::wstring error = std::to_wstring(GetParam().reported) + L" " +
                             platform::SystemDescription(GetParam().reported);
  EXPECT_EQ(Resolve(page, {50, 50}), L"none");
  EXPECT_THAT(boxes_.shown, IsEmpty());
  EXPECT_THAT(messages_, ElementsAre(L"ResolveFrameDocument:" + error));
  EXPECT_EQ(Find(page, {50, 50}), L"none");
  EXPECT_THAT(boxes_.shown, ElementsAre(L"GetElFromPoint|" + error + L"\r\nError Line = 0"));
  EXPECT_EQ(messages_.size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(
    Calls, FrameFailureTest,
    testing::Values(Failure{".elementFromPoint", E_FAIL}, Failure{"document top.frames", E_FAIL},
                    Failure{"window .length", E_ACCESSDENIED},
                    Failure{"window .item", E_ACCESSDENIED},
                    Failure{"window a.name", E_ACCESSDENIED},
                    Failure{"window a.document", E_ACCESSDENIED},
                    Failure{"window a.document", S_FALSE, E_ACCESSDENIED},
                    Failure{"FRAME@a.getBoundingClientRect", E_FAIL},
                    Failure{"FRAME@a.getBoundingClientRect", S_FALSE, E_UNEXPECTED},
                    Failure{"FRAME@a.rectangle.left", E_FAIL},
                    Failure{"FRAME@a.rectangle.top", RPC_E_SERVERFAULT}));

TEST_F(FrameDescentTest, APointerThatCannotBeReadIsReported) {
  html::Page page(With({}));
  fake_.hasPointer = false;
  EXPECT_EQ(Find(page, {50, 50}), L"none");
  ASSERT_EQ(boxes_.shown.size(), 1U);
  EXPECT_THAT(boxes_.shown[0], StartsWith(L"GetElFromPoint|-2147024891 "));
}

TEST_F(FrameDescentTest, EndlessFramesGiveNothing) {
  html::Page page(With({Frame({.tag = L"FRAME", .name = L"a"}, {0, 0, 400, 400}, L"a")}));
  page.WindowNamed("a").content = &page.Top();  // the frame shows the page that it is in
  EXPECT_EQ(Resolve(page, {50, 50}), L"none");
  EXPECT_THAT(messages_, IsEmpty());
  EXPECT_EQ(Find(page, {50, 50}), L"none");
  EXPECT_THAT(boxes_.shown, IsEmpty());
}

}  // namespace
}  // namespace MyInternetexplore
