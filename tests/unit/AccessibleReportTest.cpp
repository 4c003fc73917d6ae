#include "accessibility/AccessibleReport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "../accessible/AccessibleNode.h"
#include "FakeSession.h"
#include "accessibility/AccessibleRows.h"
#include "platform/ErrorReport.h"

namespace MyAccessible {
namespace {

using accessible::Node;
using testing::ElementsAre;

#define LINE39 L"---------------------------------------\r\n"
#define COLUMNS                                                       \
  L" accName\taccRole:Text\t( Location )\tChildCount=n\taccValue\r\n" \
  L" ----------------------------------------------------------\r\n"

// A list in a group in a window, with two simple elements and an object in it.
class AccessibleReportTest : public testing::Test {
 protected:
  AccessibleReportTest()
      : before_(
            platform::SetMessageBox([this](const std::wstring& text, const std::wstring& title) {
              boxes_.push_back(title + L"|" + text);
            })) {
    settings_.parentChildren = 1;
    settings_.parentChildrenMax = 10;
    settings_.accnameMax = 50;
    window_.AddObject(group_);
    group_.AddObject(list_);
    list_.AddElement({.name = L"林檎",
                      .value = L"赤",
                      .role = ROLE_SYSTEM_LISTITEM,
                      .state = 0x300006,
                      .place = {10, 20, 100, 16}});
    list_.AddObject(button_);
    list_.AddElement({.name = L"蜜柑",
                      .value = L"橙",
                      .role = ROLE_SYSTEM_LISTITEM,
                      .state = 0x200000,
                      .place = {10, 52, 100, 16},
                      .description = L"果物",
                      .defaultAction = L"選ぶ"});
  }
  ~AccessibleReportTest() override {
    platform::SetMessageBox(before_);
    for (const Node* const node : {&window_, &group_, &list_, &button_}) {
      EXPECT_EQ(node->References(), 1U);
    }
  }

  std::wstring Report(Node& object, LONG child, const ReportedWindow& window = {}) {
    ObjectAndChild found;
    object.AddRef();
    *found.object.GetAddressOf() = &object;
    found.child.Receive()->vt = VT_I4;
    *found.child.Receive() = platform::UniqueVariant(child).Get();
    for (Node* const node : {&window_, &group_, &list_, &button_}) node->calls.clear();
    return ReportOf(record_, window, found, settings_, session_.Session());
  }

  Node window_{
      {.name = L"窓の題", .role = ROLE_SYSTEM_WINDOW, .state = 0, .place = {0, 0, 640, 480}}};
  Node group_{{.name = L"組", .role = ROLE_SYSTEM_GROUPING, .place = {5, 15, 200, 100}}};
  Node list_{{.name = L"果物の一覧",
              .value = L"二つ",
              .role = ROLE_SYSTEM_LIST,
              .state = 0x100000,
              .place = {10, 20, 100, 80},
              .description = L"好きな果物",
              .defaultAction = L"開く",
              .keyboardShortcut = L"Alt+F"}};
  Node button_{{.name = L"追加",
                .value = L"加",
                .role = ROLE_SYSTEM_PUSHBUTTON,
                .place = {10, 36, 100, 16}}};
  settings::Settings settings_;
  FakeSession session_;
  AccessibleFacts record_;
  std::vector<std::wstring> boxes_;
  platform::MessageBoxFunction before_;
};

constexpr const wchar_t* kListsAncestors =
    L" \"窓の題\"\t9:ウィンドウ\t(0,0,640,480)\tChildCount=1\t\"窓の題\"\r\n"
    L" \"組\"\t20:グループ化\t(5,15,205,115)\tChildCount=1\t\"組\"\r\n";

constexpr const wchar_t* kListsMembers =
    L"Name       : 果物の一覧\r\n"
    L"Value      : 二つ\r\n"
    L"Role       : 33 リスト\r\n"
    L"State      : x100000 フォーカス可。\r\n"
    L"KbShortCut : Alt+F\r\n"
    L"Location   : (l:10,t:20,r:110,b:100)\r\n"
    L"ChildCount : 3\r\n"
    L"DefAction  : 開く\r\n"
    L"Description: 好きな果物\r\n"
    L"\r\n"
    L"Id         : 0\r\n"
    L"Object Type: Container\r\n"
    L"\r\n";

TEST_F(AccessibleReportTest, AnObjectWithAncestorsAndChildren) {
  EXPECT_EQ(Report(list_, 0),
            std::wstring(L"MSAA(MS Active Accessibility)情報\r\n" LINE39) + kListsMembers +
                L"Ancestors  : top → bottom\r\n" COLUMNS + kListsAncestors +
                L"Children   : 3 max=10\r\n" COLUMNS
                L" \"林檎\"\t34:リスト項目\t(10,20,110,36)\tChildCount=0\t\"赤\"\r\n"
                L" \"追加\"\t43:ボタン\t(10,36,110,52)\tChildCount=0\t\"加\" TypeName=Real "
                L"Object\r\n"
                L" \"蜜柑\"\t34:リスト項目\t(10,52,110,68)\tChildCount=0\t\"橙\"\r\n");
  EXPECT_THAT(session_.progress, ElementsAre(L"1", L"2", L"3"));
  EXPECT_THAT(boxes_, ElementsAre());
}

TEST_F(AccessibleReportTest, ASimpleElement) {
  // The last column asks every ancestor for the child found: the list has it, the others do not.
  EXPECT_EQ(
      Report(list_, 3),
      L"MSAA(MS Active Accessibility)情報\r\n" LINE39
      L"Name       : 蜜柑\r\n"
      L"Value      : 橙\r\n"
      L"Role       : 34 リスト項目\r\n"
      L"State      : x200000 選択可。\r\n"
      L"KbShortCut : Alt+F\r\n"
      L"Location   : (l:10,t:52,r:110,b:68)\r\n"
      L"ChildCount : 0\r\n"
      L"DefAction  : 選ぶ\r\n"
      L"Description: 果物\r\n"
      L"\r\n"
      L"Id         : 3\r\n"
      L"Object Type: Simple Element\r\n"
      L"\r\n"
      L"Ancestors  : top → bottom\r\n" COLUMNS
      L" \"窓の題\"\t9:ウィンドウ\t(0,0,640,480)\tChildCount=1\t\"\"\r\n"
      L" \"組\"\t20:グループ化\t(5,15,205,115)\tChildCount=1\t\"\"\r\n"
      L" \"果物の一覧\"\t33:リスト\t(10,20,110,100)\tChildCount=3\t\"蜜柑\"\r\n"
      L"Children   : 0 max=10\r\n" COLUMNS);
}

TEST_F(AccessibleReportTest, AnObjectOfAWindowNamesTheWindow) {
  settings_.parentChildren = 0;
  const ReportedWindow window{reinterpret_cast<HWND>(0x1408B4), L"ListBox", L"題 \"名\""};
  EXPECT_EQ(Report(list_, 0, window), std::wstring(L"MSAA(MS Active Accessibility)情報\r\n"
                                                   L"　--ウィンドウハンドル(1312948)から取得\r\n"
                                                   L"　　ListBox \"題 \"名\"\"\r\n" LINE39) +
                                          kListsMembers + L"Ancestors  : top → bottom\r\n" COLUMNS +
                                          kListsAncestors + L"Children   : 3 max=10\r\n" COLUMNS);
}

TEST_F(AccessibleReportTest, TheLargestNumberZeroListsNothing) {
  settings_.parentChildrenMax = 0;
  EXPECT_EQ(Report(list_, 0), std::wstring(L"MSAA(MS Active Accessibility)情報\r\n" LINE39) +
                                  kListsMembers +
                                  L"\r\n"
                                  L"Parents    : 取得最大個数は０になっています\r\n"
                                  L"\r\n"
                                  L"Children 　: 取得最大個数は０になっています");
}

TEST_F(AccessibleReportTest, TheLargestNumberOneListsTwoAncestorsAndOneChild) {
  settings_.parentChildrenMax = 1;
  EXPECT_EQ(Report(button_, 0),
            L"MSAA(MS Active Accessibility)情報\r\n" LINE39
            L"Name       : 追加\r\n"
            L"Value      : 加\r\n"
            L"Role       : 43 ボタン\r\n"
            L"State      : x0 \r\n"
            L"KbShortCut : \r\n"
            L"Location   : (l:10,t:36,r:110,b:52)\r\n"
            L"ChildCount : 0\r\n"
            L"DefAction  : \r\n"
            L"Description: \r\n"
            L"\r\n"
            L"Id         : 0\r\n"
            L"Object Type: Container\r\n"
            L"\r\n"
            L"Ancestors  : top → bottom\r\n" COLUMNS
            L" \"組\"\t20:グループ化\t(5,15,205,115)\tChildCount=1\t\"組\"\r\n"
            L" \"果物の一覧\"\t33:リスト\t(10,20,110,100)\tChildCount=3\t\"果物の一覧\"\r\n"
            L"Children   : 0 max=1\r\n" COLUMNS);
  EXPECT_TRUE(
      Report(list_, 0).ends_with(
          L"Children   : 3 "
          L"max=1\r\n" COLUMNS L" \"林檎\"\t34:リスト項目\t(10,20,110,36)\tChildCount=0\t\"赤\"\r\n"
          L"-- 以下省略 -- 個数変更：[設定]→[MSAA] …Child最大取得個数\r\n"));
}

TEST_F(AccessibleReportTest, WithoutParentAndChildrenTheChildrenAreNotListed) {
  settings_.parentChildren = 0;
  EXPECT_EQ(Report(list_, 0), std::wstring(L"MSAA(MS Active Accessibility)情報\r\n" LINE39) +
                                  kListsMembers + L"Ancestors  : top → bottom\r\n" COLUMNS +
                                  kListsAncestors + L"Children   : 3 max=10\r\n" COLUMNS);
  EXPECT_EQ(record_.parentName, L"");
  EXPECT_EQ(record_.parentRole, L"");
  EXPECT_EQ(record_.children, L"");
}

TEST_F(AccessibleReportTest, WithoutARoleItIsNoAccessibleObject) {
  button_.failures["accRole"] = E_FAIL;
  EXPECT_EQ(Report(button_, 0),
            std::wstring(L"MSAA(MS Active Accessibility)情報\r\n" LINE39 L"\r\n"
                         L" %% Not MSAA %%\r\n"
                         L"\r\n"
                         L"Ancestors  : top → bottom\r\n" COLUMNS) +
                kListsAncestors +
                L" \"果物の一覧\"\t33:リスト\t(10,20,110,100)\tChildCount=3\t\"果物の一覧\"\r\n");
  EXPECT_THAT(boxes_, ElementsAre());
}

TEST_F(AccessibleReportTest, WithoutARoleAndWithTheLargestNumberZero) {
  settings_.parentChildrenMax = 0;
  button_.failures["accRole"] = E_FAIL;
  EXPECT_EQ(Report(button_, 0),
            L"MSAA(MS Active Accessibility)情報\r\n" LINE39
            L"\r\n"
            L" %% Not MSAA %%\r\n"
            L"\r\n"
            L"\r\n"
            L"Parents    : 取得最大個数は０になっています\r\n"
            L"\r\n");
}

TEST_F(AccessibleReportTest, TheRoleDecidesNotItsName) {
  button_.Own().role = 64;
  EXPECT_NE(Report(button_, 0).find(L"Role       : 64 \r\n"), std::wstring::npos);
  button_.Own().roleText = L"独自の役";
  EXPECT_NE(Report(button_, 0).find(L"Role       : 独自の役 \r\n"), std::wstring::npos);
}

TEST_F(AccessibleReportTest, WithoutAncestorsThereIsAnError) {
  settings_.parentChildren = 0;
  EXPECT_EQ(Report(window_, 0),
            L"MSAA(MS Active Accessibility)情報\r\n" LINE39
            L"Name       : 窓の題\r\n"
            L"Value      : \r\n"
            L"Role       : 9 ウィンドウ\r\n"
            L"State      : x0 \r\n"
            L"KbShortCut : \r\n"
            L"Location   : (l:0,t:0,r:640,b:480)\r\n"
            L"ChildCount : 1\r\n"
            L"DefAction  : \r\n"
            L"Description: \r\n"
            L"\r\n"
            L"Id         : 0\r\n"
            L"Object Type: Container\r\n"
            L"\r\n"
            L"Ancestors  : \r\n"
            L"\r\n"
            L"GetParentObject failed\r\n"
            L"\r\n"
            L"Children   : 1 max=10\r\n" COLUMNS);
}

TEST_F(AccessibleReportTest, AnEdgeBeyond32BitsEndsTheReport) {
  const std::wstring built =
      L"MSAA(MS Active Accessibility)情報\r\n" LINE39
      L"Name       : 追加\r\n"
      L"Value      : 加\r\n"
      L"Role       : 43 ボタン\r\n"
      L"State      : x0 \r\n"
      L"KbShortCut : \r\n";
  constexpr LONG kMost = std::numeric_limits<LONG>::max();
  constexpr LONG kLeast = std::numeric_limits<LONG>::min();
  for (const RECT place : {RECT{kMost, 0, 1, 1}, RECT{0, 1, 1, kMost}, RECT{kLeast, 0, -1, 1}}) {
    boxes_.clear();
    button_.Own().place = place;
    EXPECT_EQ(Report(button_, 0), built);
    EXPECT_EQ(record_.name, L"追加");
    ASSERT_EQ(boxes_.size(), 1U);
    EXPECT_TRUE(boxes_[0].starts_with(L"GetAccessibleMemberFromPoint|534 ")) << boxes_[0];
    EXPECT_GT(boxes_[0].size(), std::wstring(L"GetAccessibleMemberFromPoint|534 ").size());
    // What is not told is not read.
    EXPECT_EQ(std::ranges::count(button_.calls, "accParent"), 1);
  }
  button_.Own().place = {kMost - 1, kLeast, 1, -1};
  button_.Own().place.bottom = 0;
  boxes_.clear();
  EXPECT_NE(Report(button_, 0).find(L"(l:2147483646,t:-2147483648,r:2147483647,b:-2147483648)"),
            std::wstring::npos);
  EXPECT_THAT(boxes_, ElementsAre());
}

TEST_F(AccessibleReportTest, RowsHoldEdgesBeyond32Bits) {
  group_.Own().place = {2147483647, 0, 2147483647, 1};
  EXPECT_NE(Report(list_, 0).find(L"(2147483647,0,4294967294,1)"), std::wstring::npos);
}

TEST_F(AccessibleReportTest, TheRecordIsFilledInItsOrder) {
  Report(list_, 0);
  const std::vector<std::string> filled = {
      "accLocation 0", "accName 0",          "accValue 0",       "accRole 0",
      "accRole 0",     "accState 0",         "accState 0",       "accKeyboardShortcut -",
      "accFocus",      "accDefaultAction 0", "accDescription 0", "accParent",
      "accChildCount"};
  ASSERT_GE(list_.calls.size(), filled.size());
  EXPECT_EQ(std::vector<std::string>(list_.calls.begin(), list_.calls.begin() + 13), filled);
  // The parent is asked for its name without a child.
  EXPECT_EQ(group_.calls.front(), "accName -");
  EXPECT_EQ(record_.role, L"33");
  EXPECT_EQ(record_.roleText, L"リスト");
  EXPECT_EQ(record_.state, L"1048576");
  EXPECT_EQ(record_.stateText, L"フォーカス可。");
  EXPECT_EQ(record_.focus, L"0");
  EXPECT_EQ(record_.parentName, L"組");
  EXPECT_EQ(record_.parentRole, L"20:グループ化");
  EXPECT_EQ(record_.childCount, L"3");
  EXPECT_EQ(record_.location.width, 100);
  // Neither focus nor parent are told.
  list_.hasFocus = true;
  Report(list_, 0);
  EXPECT_EQ(record_.focus, L"1");
}

TEST_F(AccessibleReportTest, AncestorsAreAskedForTwice) {
  settings_.parentChildren = 0;
  Report(list_, 0);
  EXPECT_EQ(std::ranges::count(window_.calls, "accLocation 0"), 2);
  EXPECT_EQ(std::ranges::count(list_.calls, "accParent"), 2);
}

TEST_F(AccessibleReportTest, OnlyMembersOfTheAncestorsBelowTheLargestNumber) {
  // Parents that go round in a circle.
  window_.parent = &list_;
  const auto rows = [this] {
    const platform::ReadSession session = session_.Session();
    return AncestorRows(&list_, Self(), settings_, ListingProgress(session));
  };
  settings_.parentChildrenMax = 10;
  EXPECT_EQ(std::ranges::count(rows(), L'\n'), 11);
  settings_.parentChildrenMax = 1'000'000'000;
  EXPECT_EQ(std::ranges::count(rows(), L'\n'), 1000);
  settings_.parentChildrenMax = 0;
  EXPECT_EQ(rows(), L"");
}

TEST_F(AccessibleReportTest, AncestorsAreListedUntilTheCaptureMovesOn) {
  window_.parent = &list_;
  settings_.parentChildren = 0;
  settings_.parentChildrenMax = 1000;
  session_.moveOnAfter = 2;
  list_.calls.clear();
  const std::wstring text = Report(list_, 0);
  const std::size_t first = text.find(L"Ancestors  : top → bottom\r\n" COLUMNS);
  ASSERT_NE(first, std::wstring::npos);
  EXPECT_TRUE(
      text.substr(first).starts_with(
          L"Ancestors  : top → bottom\r\n" COLUMNS L"・・・中断・・・\r\n"
          L"Children   : 3 max=1000\r\n"))
      << text;
  // No more than the two before it, although the listing is made twice.
  EXPECT_EQ(session_.yields, 2);
}

TEST_F(AccessibleReportTest, ACaptureThatEndsGetsAllAncestors) {
  settings_.parentChildren = 0;
  const std::wstring whole = Report(list_, 0);
  session_.onYield = [this] {
    session_.running = false;
    session_.target = nullptr;  // as when no capture runs
  };
  EXPECT_EQ(Report(list_, 0), whole);
}

TEST_F(AccessibleReportTest, OfAWindowThatWasLeftBeforeNothingIsListed) {
  session_.onYield = [] { FAIL() << "something was listed"; };
  const platform::ReadSession session = session_.Session();
  session_.GoElsewhere();
  EXPECT_EQ(AncestorRows(&list_, Self(), settings_, ListingProgress(session)),
            L"・・・中断・・・\r\n");
  EXPECT_EQ(ChildRows(&list_, Self(), settings_, ListingProgress(session)), L"・・・中断・・・");
}

TEST_F(AccessibleReportTest, NamesInRowsAreCutButForTheLastColumn) {
  group_.Own().name = std::wstring(51, L'長');
  EXPECT_NE(
      Report(list_, 0).find(L" \"" + std::wstring(50, L'長') + L".......\"\t20:グループ化\t(5," +
                            L"15,205,115)\tChildCount=1\t\"" + std::wstring(51, L'長') + L"\"\r\n"),
      std::wstring::npos);
}

TEST_F(AccessibleReportTest, FailingMembersAreEmpty) {
  for (const HRESULT code : {E_NOTIMPL, E_FAIL, DISP_E_MEMBERNOTFOUND, RPC_E_DISCONNECTED}) {
    button_.failures[""] = code;
    button_.failures["accRole"] = S_OK;
    EXPECT_EQ(Report(button_, 0),
              L"MSAA(MS Active Accessibility)情報\r\n" LINE39
              L"Name       : \r\n"
              L"Value      : \r\n"
              L"Role       : 43 ボタン\r\n"
              L"State      : x \r\n"
              L"KbShortCut : \r\n"
              L"Location   : (l:0,t:0,r:0,b:0)\r\n"
              L"ChildCount : \r\n"
              L"DefAction  : \r\n"
              L"Description: \r\n"
              L"\r\n"
              L"Id         : 0\r\n"
              L"Object Type: Real Object\r\n"
              L"\r\n"
              L"Ancestors  : \r\n"
              L"\r\n"
              L"GetParentObject failed\r\n"
              L"\r\n"
              L"Children   :  max=10\r\n" COLUMNS);
    EXPECT_EQ(record_.parentName, L"");
  }
  EXPECT_THAT(boxes_, ElementsAre());
}

TEST_F(AccessibleReportTest, EveryStateBitIsTold) {
  button_.Own().state = static_cast<LONG>(0xFFFFFFFF);
  EXPECT_NE(Report(button_, 0).find(L"State      : xFFFFFFFF 利用不可。チェックされています。"),
            std::wstring::npos);
  EXPECT_EQ(record_.state, L"-1");
}

TEST_F(AccessibleReportTest, HugeNamesAreReportedWhole) {
  const std::wstring name(5'000'000, L'巨');
  button_.Own().name = name;
  const std::wstring text = Report(button_, 0);
  EXPECT_EQ(text.find(name),
            std::wstring(L"MSAA(MS Active Accessibility)情報\r\n" LINE39 L"Name       : ").size());
}

TEST_F(AccessibleReportTest, AClaimOfTwoThousandMillionChildrenIsTold) {
  list_.claimedChildren = 2'000'000'000;
  list_.enumerates = true;
  const std::wstring text = Report(list_, 0);
  EXPECT_NE(text.find(L"Children   : 2000000000 max=10\r\n"), std::wstring::npos);
  EXPECT_TRUE(text.ends_with(L"\"橙\"\r\n"));
  list_.enumerates = false;
  EXPECT_TRUE(
      Report(list_, 0).ends_with(L" \"\"\t:\t(0,0,0,0)\tChildCount=0\t\"\"\r\n"
                                 L"-- 以下省略 -- 個数変更：[設定]→[MSAA] …Child最大取得個数\r\n"));
}

TEST_F(AccessibleReportTest, AnotherTargetInterruptsTheChildren) {
  session_.moveOnAfter = 1;
  EXPECT_TRUE(Report(list_, 0).ends_with(L"ChildCount=0\t\"赤\"\r\n・・・中断・・・"));
}

TEST_F(AccessibleReportTest, WithoutAnObjectThereIsNoReport) {
  EXPECT_EQ(
      GetAccessibleMemberFromPoint(record_, {}, {-30'000, -30'000}, settings_, session_.Session()),
      L"");
  EXPECT_EQ(GetAccessibleMemberFromPoint(record_, {reinterpret_cast<HWND>(0x7FFF1234), L"", L""},
                                         {}, settings_, session_.Session()),
            L"");
}

TEST_F(AccessibleReportTest, FiveHundredReportsLeaveNothingBehind) {
  list_.failures["accParent"] = E_FAIL;
  button_.claimedChildren = 2'000'000'000;
  window_.parent = &button_;
  for (int i = 0; i < 500; ++i) {
    Report(list_, 0);
    Report(list_, 3);
    Report(button_, 0);
  }
  window_.parent = nullptr;
}

}  // namespace
}  // namespace MyAccessible
