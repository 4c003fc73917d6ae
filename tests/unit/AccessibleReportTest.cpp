// The report on an accessible object.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "../accessible/ReportText.h"
#include "AccessibleReportFixture.h"
#include "platform/UniqueHandle.h"

namespace MyAccessible {
namespace {

using testing::ElementsAre;

class AccessibleReportTest : public AccessibleReportFixture {};

constexpr const wchar_t* kListsAncestors =
    L" \"窓の題\"\t9:ウィンドウ\t(0,0,640,480)\tChildCount=1\t\"窓の題\"\r\n"
    L" \"組\"\t20:グループ化\t(5,15,205,115)\tChildCount=1\t\"組\"\r\n";

const std::wstring kListsMembers = accessible::MemberLines({.name = L"果物の一覧",
                                                            .value = L"二つ",
                                                            .role = L"33 リスト",
                                                            .state = L"x100000 フォーカス可。",
                                                            .shortcut = L"Alt+F",
                                                            .location = L"l:10,t:20,r:110,b:100",
                                                            .childCount = L"3",
                                                            .defaultAction = L"開く",
                                                            .description = L"好きな果物"});

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
  // The last column reads the found child from every ancestor: the list has it, the others do not.
  EXPECT_EQ(
      Report(list_, 3),
      L"MSAA(MS Active Accessibility)情報\r\n" LINE39 + accessible::MemberLines({.name = L"蜜柑", .value = L"橙", .role = L"34 リスト項目", .state = L"x200000 選択可。", .shortcut = L"Alt+F", .location = L"l:10,t:52,r:110,b:68", .childCount = L"0", .defaultAction = L"選ぶ", .description = L"果物", .id = L"3", .type = L"Simple Element"}) + 
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
            L"MSAA(MS Active Accessibility)情報\r\n" LINE39 + accessible::MemberLines({.name = L"追加", .value = L"加", .role = L"43 ボタン", .location = L"l:10,t:36,r:110,b:52", .childCount = L"0"}) + 
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
  EXPECT_EQ(Report(window_, 0), L"MSAA(MS Active Accessibility)情報\r\n" LINE39 +
                                    accessible::MemberLines({.name = L"窓の題",
                                                             .role = L"9 ウィンドウ",
                                                             .location = L"l:0,t:0,r:640,b:480",
                                                             .childCount = L"1"}) +
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
    // What is not shown is not read.
    EXPECT_EQ(std::ranges::count(button_.calls, "accParent"), 1);
  }
  button_.Own().place = {kMost - 1, kLeast, 1, -1};
  button_.Own().place.bottom = 0;
  boxes_.clear();
  EXPECT_NE(Report(button_, 0).find(L"(l:2147483646,t:-2147483648,r:2147483647,b:-2147483648)"),
            std::wstring::npos);
  EXPECT_THAT(boxes_, ElementsAre());
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
  // The name of the parent is read without a child.
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
  // Neither focus nor parent are shown.
  list_.hasFocus = true;
  Report(list_, 0);
  EXPECT_EQ(record_.focus, L"1");
}

TEST_F(AccessibleReportTest, FailingMembersAreEmpty) {
  for (const HRESULT code : {E_NOTIMPL, E_FAIL, DISP_E_MEMBERNOTFOUND, RPC_E_DISCONNECTED}) {
    button_.failures[""] = code;
    button_.failures["accRole"] = S_OK;
    EXPECT_EQ(Report(button_, 0), L"MSAA(MS Active Accessibility)情報\r\n" LINE39 +
                                      accessible::MemberLines({.role = L"43 ボタン",
                                                               .state = L"x ",
                                                               .location = L"l:0,t:0,r:0,b:0",
                                                               .type = L"Real Object"}) +
                                      L"Ancestors  : \r\n"
                                      L"\r\n"
                                      L"GetParentObject failed\r\n"
                                      L"\r\n"
                                      L"Children   :  max=10\r\n" COLUMNS);
    EXPECT_EQ(record_.parentName, L"");
  }
  EXPECT_THAT(boxes_, ElementsAre());
}

TEST_F(AccessibleReportTest, EveryStateBitIsReported) {
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

TEST_F(AccessibleReportTest, WithoutAnObjectThereIsNoReport) {
  EXPECT_EQ(
      GetAccessibleMemberFromPoint(record_, {}, {-30'000, -30'000}, settings_, session_.Session()),
      L"");
  EXPECT_EQ(GetAccessibleMemberFromPoint(record_, {reinterpret_cast<HWND>(0x7FFF1234), L"", L""},
                                         {}, settings_, session_.Session()),
            L"");
}

TEST_F(AccessibleReportTest, AWindowIsReportedByItsOwnObject) {
  const platform::UniqueWindow window(CreateWindowExW(0, L"STATIC", L"窓の文字", WS_POPUP, 0, 0, 10,
                                                      10, nullptr, nullptr, nullptr, nullptr));
  const std::wstring report = GetAccessibleMemberFromPoint(
      record_, {window.Get(), L"類", L"題"}, {{-30'000, -30'000}}, settings_, session_.Session());
  EXPECT_THAT(report, testing::HasSubstr(L"　　類 \"題\"\r\n"));
  EXPECT_THAT(report, testing::HasSubstr(L"Name       : 窓の文字\r\n"));
  EXPECT_EQ(record_.name, L"窓の文字");
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
