#include "accessibility/AccessibleListing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>
#include <string>

#include "../ReadItems.h"
#include "../accessible/AccessibleNode.h"
#include "FakeSession.h"
#include "accessibility/AccessibleRows.h"

namespace MyAccessible {
namespace {

using accessible::Node;
using testing::ElementsAre;

constexpr const wchar_t* kOmitted =
    L"-- 以下省略 -- 個数変更：[設定]→[MSAA] …Child最大取得個数\r\n";

class AccessibleListingTest : public testing::Test {
 protected:
  AccessibleListingTest() {
    settings_.parentChildrenMax = 10;
    settings_.accnameMax = 50;
    settings_.treeviewIndent = 1;
  }

  std::wstring Children(Node& root) { return ChildrenOf(&root, settings_, session_.Session()); }

  std::wstring Tree(Node& root, LONG item) { return Tree(root, item, session_.Session()); }
  std::wstring Tree(Node& root, LONG item, const platform::ReadSession& session) {
    ObjectAndChild start;
    root.AddRef();
    *start.object.GetAddressOf() = &root;
    VARIANT* const child = start.child.Receive();
    child->vt = VT_I4;
    child->lVal = item;
    return TreeAround(start, settings_, session);
  }

  settings::Settings settings_;
  FakeSession session_;
};

void AddItem(Node& tree, const wchar_t* name, const wchar_t* level) {
  tree.AddElement({.name = name, .value = level, .role = ROLE_SYSTEM_OUTLINEITEM});
}

std::size_t Lines(const std::wstring& text) {
  std::size_t lines = 0;
  for (const wchar_t character : text) lines += character == L'\n' ? 1 : 0;
  return lines;
}

TEST(ShortNameTest, LongNamesAreCut) {
  EXPECT_EQ(ShortName(std::wstring(50, L'名'), 50), std::wstring(50, L'名'));
  EXPECT_EQ(ShortName(std::wstring(51, L'名'), 50), std::wstring(50, L'名') + L".......");
  EXPECT_EQ(ShortName(L"", 0), L"");
  EXPECT_EQ(ShortName(L"あ", 0), L".......");
  EXPECT_EQ(ShortName(L"あ", -1), L".......");
}

TEST_F(AccessibleListingTest, ChildrenAreFollowedByTheirOwn) {
  Node root({.name = L"根"});
  Node group({.name = L"組"});
  Node inner({.name = L"内"});
  root.AddElement({.name = L"一"});
  root.AddObject(group);
  root.AddElement({.name = L"三"});
  group.AddElement({.name = L"組の一"});
  group.AddObject(inner);
  inner.AddElement({.name = L"内の一"});
  EXPECT_EQ(Children(root), L"一\r\n組\r\n組の一\r\n内\r\n内の一\r\n三\r\n");
  EXPECT_THAT(session_.progress, ElementsAre(L"1", L"2", L"3", L"4", L"5", L"6"));
  EXPECT_EQ(session_.yields, 6);
  EXPECT_EQ(root.References(), 1U);
  EXPECT_EQ(group.References(), 1U);
  EXPECT_EQ(inner.References(), 1U);
}

TEST_F(AccessibleListingTest, TheCountIsShownBeforeTheReaderYields) {
  Node root({});
  for (const wchar_t* const name : {L"一", L"二", L"三"}) AddItem(root, name, L"0");
  session_.onYield = [this] {
    EXPECT_EQ(static_cast<int>(session_.progress.size()), session_.yields);
  };
  Children(root);
  Tree(root, 2);
  const platform::ReadSession session = session_.Session();
  ChildRows(&root, Self(), settings_, session);
  EXPECT_EQ(session_.yields, 9);
}

TEST_F(AccessibleListingTest, NoChildrenGiveNoText) {
  Node root({.name = L"根"});
  EXPECT_EQ(Children(root), L"");
  root.failures["accChildCount"] = E_FAIL;
  root.AddElement({.name = L"一"});
  EXPECT_EQ(Children(root), L"");
}

TEST_F(AccessibleListingTest, ChildrenWithoutANameGetNoLine) {
  Node root({});
  Node nameless({});
  nameless.AddElement({.name = L"中"});
  root.AddElement({});
  root.AddObject(nameless);
  EXPECT_EQ(Children(root), L"中\r\n");
}

// Windows of unknown kinds are then read by the next method.
TEST_F(AccessibleListingTest, WithoutASingleNameItIsEmptyHoweverManyChildren) {
  Node root({.name = L"根"});
  for (const int children : {1, 999, 1000, 1001, 5000}) {
    Node crowd({});
    for (int i = 0; i < children; ++i) crowd.AddElement({});
    EXPECT_EQ(Children(crowd), L"") << children;
  }
}

TEST_F(AccessibleListingTest, AThousandNamelessChildrenEndAListWithNames) {
  Node root({});
  root.AddElement({.name = L"一"});
  for (int i = 0; i < 1000; ++i) root.AddElement({});
  root.AddElement({.name = L"終"});
  settings_.parentChildrenMax = 5000;
  EXPECT_EQ(Children(root), std::wstring(L"一\r\n") + kOmitted);
}

TEST_F(AccessibleListingTest, TheListIsCutAfterTheLargestNumber) {
  Node root({});
  for (int i = 0; i < 3; ++i) root.AddElement({.name = L"子"});
  settings_.parentChildrenMax = 3;
  EXPECT_EQ(Children(root), L"子\r\n子\r\n子\r\n");
  root.AddElement({.name = L"子"});
  EXPECT_EQ(Children(root), std::wstring(L"子\r\n子\r\n子\r\n") + kOmitted);
  settings_.parentChildrenMax = 0;
  EXPECT_EQ(Children(root), kOmitted);
}

TEST_F(AccessibleListingTest, TheLargestNumberCountsAllLevels) {
  Node root({});
  Node group({.name = L"組"});
  root.AddObject(group);
  root.AddElement({.name = L"終"});
  group.AddElement({.name = L"一"});
  group.AddElement({.name = L"二"});
  settings_.parentChildrenMax = 2;
  EXPECT_EQ(Children(root), std::wstring(L"組\r\n一\r\n") + kOmitted);
}

TEST_F(AccessibleListingTest, LongListsAreFetchedPieceByPiece) {
  Node root({});
  for (int i = 0; i < 200; ++i) root.AddElement({.name = std::to_wstring(i)});
  settings_.parentChildrenMax = 1000;
  std::wstring expected;
  for (int i = 0; i < 200; ++i) expected += std::to_wstring(i) + L"\r\n";
  EXPECT_EQ(Children(root), expected);
  root.enumerates = true;
  EXPECT_EQ(Children(root), expected);
}

TEST_F(AccessibleListingTest, AnotherTargetInterrupts) {
  Node root({});
  for (int i = 0; i < 5; ++i) root.AddElement({.name = L"子"});
  session_.moveOnAfter = 2;
  EXPECT_EQ(Children(root), L"子\r\n子\r\n・・・中断・・・");
}

TEST_F(AccessibleListingTest, ATargetThatMovedBeforeInterruptsAtOnce) {
  Node root({});
  for (int i = 0; i < 5; ++i) AddItem(root, L"子", L"0");
  const platform::ReadSession session = session_.Session();
  session_.GoElsewhere();
  EXPECT_EQ(ChildrenOf(&root, settings_, session), L"・・・中断・・・");
  EXPECT_EQ(Tree(root, 1, session), L"・・・中断・・・");
  EXPECT_EQ(session_.yields, 0);
}

TEST_F(AccessibleListingTest, TheEndOfTheCaptureInterruptsAtAnyDepth) {
  Node root({});
  Node group({.name = L"組"});
  root.AddObject(group);
  root.AddElement({.name = L"後"});
  for (int i = 0; i < 5; ++i) group.AddElement({.name = L"子"});
  session_.endAfter = 3;
  EXPECT_EQ(Children(root), L"組\r\n子\r\n子\r\n・・・中断・・・");
}

TEST_F(AccessibleListingTest, AClaimedCountIsNotTrusted) {
  Node root({.name = L"嘘"});
  root.AddElement({.name = L"一"});
  root.claimedChildren = 2'000'000'000;
  root.enumerates = true;
  EXPECT_EQ(Children(root), L"一\r\n");
  // Without an enumeration every number is a child, until too many have no name.
  root.enumerates = false;
  EXPECT_EQ(Children(root), std::wstring(L"一\r\n") + kOmitted);
  EXPECT_LT(session_.yields, 2'000);
}

TEST_F(AccessibleListingTest, EndlessChildrenEnd) {
  Node root({.name = L"増"});
  root.answersEveryChild = true;
  root.claimedChildren = 2'000'000'000;
  EXPECT_EQ(Lines(Children(root)), 11U);
  // Children without a name end the listing.
  root.Own().name.clear();
  EXPECT_EQ(Children(root), L"");
  EXPECT_LT(session_.yields, 2'000);
}

TEST_F(AccessibleListingTest, AnObjectThatContainsItselfEndsAtSomeDepth) {
  Node root({.name = L"輪"});
  root.AddObject(root);
  settings_.parentChildrenMax = 1'000'000;
  const std::wstring text = Children(root);
  EXPECT_EQ(Lines(text), 64U);
  EXPECT_EQ(root.References(), 1U);
}

TEST_F(AccessibleListingTest, HugeNamesAreCut) {
  Node root({});
  root.AddElement({.name = std::wstring(5'000'000, L'巨')});
  EXPECT_EQ(Children(root), std::wstring(50, L'巨') + L".......\r\n");
}

TEST_F(AccessibleListingTest, ServersThatDieEndTheList) {
  Node root({});
  for (int i = 0; i < 100; ++i) root.AddElement({.name = L"子"});
  settings_.parentChildrenMax = 100;
  int names = 0;
  root.onCall = [&](const std::string& member) {
    if (member == "accName" && ++names == 3) root.failures[""] = RPC_E_DISCONNECTED;
  };
  EXPECT_EQ(Children(root), L"子\r\n子\r\n");
}

TEST_F(AccessibleListingTest, TreesAreListedFromTheFirstItemOnIndentedByLevel) {
  Node tree({.role = ROLE_SYSTEM_OUTLINE});
  AddItem(tree, L"親", L"1");
  AddItem(tree, L"子", L"2");
  AddItem(tree, L"孫", L"3");
  AddItem(tree, L"弟", L"1");
  AddItem(tree, L"上", L"0");
  EXPECT_EQ(Tree(tree, 3), L"親\r\n\t子\r\n\t\t孫\r\n弟\r\n上\r\n");
  EXPECT_THAT(session_.progress, ElementsAre(L"1", L"2", L"3", L"4", L"5"));
  settings_.treeviewIndent = 0;
  EXPECT_EQ(Tree(tree, 3), L"親\r\n子\r\n孫\r\n弟\r\n上\r\n");
  EXPECT_EQ(tree.References(), 1U);
}

TEST_F(AccessibleListingTest, LongNamesInTreesAreCutAfterTheirIndent) {
  Node tree({});
  AddItem(tree, std::wstring(50, L'全').c_str(), L"0");
  AddItem(tree, std::wstring(51, L'長').c_str(), L"1");
  EXPECT_EQ(Tree(tree, 1),
            std::wstring(50, L'全') + L"\r\n\t" + std::wstring(50, L'長') + L".......\r\n");
}

TEST_F(AccessibleListingTest, TreesAreSteppedBackTwentyTimesAtMost) {
  Node tree({});
  for (int i = 1; i <= 30; ++i) AddItem(tree, std::to_wstring(i).c_str(), L"0");
  EXPECT_TRUE(Tree(tree, 25).starts_with(L"5\r\n6\r\n"));
  EXPECT_TRUE(Tree(tree, 21).starts_with(L"1\r\n2\r\n"));
}

TEST_F(AccessibleListingTest, TreesOfObjectsAreWalkedToo) {
  Node tree({});
  std::deque<Node> items;
  for (const wchar_t* const name : {L"一", L"二", L"三"}) {
    tree.AddObject(items.emplace_back(accessible::Members{.name = name, .value = L"0"}));
  }
  ObjectAndChild start;
  items[1].AddRef();
  *start.object.GetAddressOf() = &items[1];
  *start.child.Receive() = Self();
  EXPECT_EQ(TreeAround(start, settings_, session_.Session()), L"一\r\n二\r\n三\r\n");
  EXPECT_EQ(items[0].References(), 1U);
  EXPECT_EQ(items[2].References(), 1U);
}

TEST_F(AccessibleListingTest, ObjectsAndSimpleElementsMayBeMixed) {
  Node tree({});
  Node item({.name = L"物"});
  AddItem(tree, L"一", L"0");
  tree.AddObject(item);
  AddItem(tree, L"三", L"0");
  EXPECT_EQ(Tree(tree, 3), L"一\r\n物\r\n三\r\n");
}

TEST_F(AccessibleListingTest, AnItemThatDoesNotNameItsHolderHasNoNumberedNeighbours) {
  Node tree({});
  Node item({.name = L"物"});
  tree.AddObject(item);
  AddItem(tree, L"二", L"0");
  item.failures["accParent"] = E_FAIL;
  EXPECT_EQ(Tree(item, CHILDID_SELF), L"物\r\n");
}

TEST_F(AccessibleListingTest, TreesAreNotCutAtTheLargestNumber) {
  Node tree({});
  for (int i = 0; i < 500; ++i) AddItem(tree, L"項", L"0");
  EXPECT_EQ(Lines(Tree(tree, 1)), 500U);
}

TEST_F(AccessibleListingTest, ALongTreeIsReadWithTheSameCallsForEveryItem) {
  Node tree({});
  for (int i = 0; i < 5000; ++i) AddItem(tree, L"項", L"0");
  EXPECT_EQ(Lines(Tree(tree, 1)), 5000U);
  // Name, value and navigation for each; the first level and the step back are read once.
  EXPECT_EQ(tree.calls.size(), 3U * 5000 + 2);
}

TEST_F(AccessibleListingTest, AnotherTargetInterruptsTrees) {
  Node tree({});
  for (int i = 0; i < 5; ++i) AddItem(tree, L"項", L"0");
  session_.moveOnAfter = 2;
  EXPECT_EQ(Tree(tree, 1), L"項\r\n項\r\n・・・中断・・・");
}

TEST_F(AccessibleListingTest, EndlessSiblingsEnd) {
  Node tree({.name = L"続", .value = L"0"});
  tree.answersEveryChild = true;
  tree.onCall = [&](const std::string&) { tree.calls.clear(); };
  const std::wstring text = Tree(tree, 100);
  EXPECT_EQ(Lines(text), 65'536U);
  EXPECT_TRUE(text.ends_with(L"・・・中断・・・"));
}

TEST_F(AccessibleListingTest, TheTreeItselfIsNoNeighbourOfItsItems) {
  Node tree({.name = L"木", .value = L"0"});
  tree.answersEveryChild = true;  // also the number 0, before the first item
  session_.moveOnAfter = 3;
  EXPECT_EQ(Tree(tree, 2), L"木\r\n木\r\n木\r\n・・・中断・・・");
}

TEST_F(AccessibleListingTest, InvalidLevelsDoNotIndent) {
  Node tree({});
  AddItem(tree, L"一", L"深い");
  AddItem(tree, L"二", L"-2147483648");
  AddItem(tree, L"三", L"2147483647");
  EXPECT_EQ(Tree(tree, 1), L"一\r\n二\r\n" + std::wstring(64, L'\t') + L"三\r\n");
}

TEST_F(AccessibleListingTest, WithoutAnObjectThereIsAnError) {
  EXPECT_EQ(TreeAt(nullptr, {-30'000, -30'000}, settings_, session_.Session()),
            L"% 取得エラー！ %");
}

}  // namespace
}  // namespace MyAccessible
