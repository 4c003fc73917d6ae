// Accessible objects of another process: reports on well-behaved ones are compared byte for byte,
// and hostile ones do no harm.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <objbase.h>

#include <chrono>
#include <cstdio>
#include <deque>
#include <string>
#include <vector>

#include "../ReadItems.h"
#include "FixtureProcess.h"
#include "ReportText.h"
#include "accessibility/AccessibleAction.h"
#include "accessibility/AccessibleListing.h"
#include "accessibility/AccessibleReport.h"
#include "bed/Needs.h"
#include "driver/Holdings.h"
#include "platform/ErrorReport.h"
#include "unit/FakeSession.h"

namespace accessible {
namespace {

using namespace MyAccessible;
using testing::ElementsAre;
using testing::IsEmpty;

#define HEADING                              \
  L"MSAA(MS Active Accessibility)情報\r\n" \
  L"---------------------------------------\r\n"
#define COLUMNS                                                       \
  L" accName\taccRole:Text\t( Location )\tChildCount=n\taccValue\r\n" \
  L" ----------------------------------------------------------\r\n"

constexpr const wchar_t* kOmitted =
    L"-- 以下省略 -- 個数変更：[設定]→[MSAA] …Child最大取得個数\r\n";

class AcrossProcessesTest : public testing::Test {
 protected:
  AcrossProcessesTest()
      : before_(
            platform::SetMessageBox([this](const std::wstring& text, const std::wstring& title) {
              boxes_.push_back(title + L"|" + text);
            })) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    settings_.parentChildren = 1;
    settings_.parentChildrenMax = 10;
    settings_.accnameMax = 50;
    settings_.treeviewIndent = 1;
  }
  ~AcrossProcessesTest() override {
    CoUninitialize();
    platform::SetMessageBox(before_);
  }

  std::wstring ReportAt(POINT point) {
    return GetAccessibleMemberFromPoint(record_, {}, {point}, settings_, session_.Session());
  }
  std::wstring ReportOf(const FixtureProcess& fixture) {
    return GetAccessibleMemberFromPoint(record_, {fixture.Window(), L"類", L"題"}, {}, settings_,
                                        session_.Session());
  }
  std::wstring Children(const FixtureProcess& fixture) {
    return ChildrenOf(fixture.Window(), settings_, session_.Session());
  }
  std::wstring Tree(const FixtureProcess& fixture, POINT point) {
    return TreeAt(fixture.Window(), point, settings_, session_.Session());
  }

  settings::Settings settings_;
  FakeSession session_;
  AccessibleFacts record_;
  std::vector<std::wstring> boxes_;
  platform::MessageBoxFunction before_;
};

std::size_t Lines(const std::wstring& text) {
  std::size_t lines = 0;
  for (const wchar_t character : text) lines += character == L'\n' ? 1 : 0;
  return lines;
}

TEST_F(AcrossProcessesTest, TheObjectAtThePointIsReported) {
  const FixtureProcess fixture("place=200,100,400,300 fruit");
  // Below the items of the list, which is at 220,120.
  EXPECT_EQ(ReportAt({300, 215}),
            HEADING + accessible::MemberLines({.name = L"果物の一覧", .value = L"二つ", .role = L"33 リスト", .state = L"x100000 フォーカス可。", .shortcut = L"Alt+F", .location = L"l:220,t:120,r:420,b:240", .childCount = L"3", .defaultAction = L"開く", .description = L"好きな果物"}) + 
            L"Ancestors  : top → bottom\r\n" COLUMNS
            L" \"果物の窓\"\t10:クライアント\t(200,100,600,400)\tChildCount=1\t\"果物の窓\"\r\n"
            L" \"組\"\t20:グループ化\t(210,110,510,290)\tChildCount=1\t\"組\"\r\n"
            L"Children   : 3 max=10\r\n" COLUMNS
            L" \"林檎\"\t34:リスト項目\t(220,120,420,140)\tChildCount=0\t\"赤\"\r\n"
            L" \"蜜柑\"\t独自の役:\t(220,140,420,160)\tChildCount=0\t\"橙\"\r\n"
            L" \"追加\"\t43:ボタン\t(220,160,420,180)\tChildCount=0\t\"加\" TypeName=Real "
            L"Object\r\n");
  EXPECT_EQ(record_.parentName, L"組");
  EXPECT_THAT(boxes_, IsEmpty());
}

TEST_F(AcrossProcessesTest, TheSimpleElementAtThePointIsReported) {
  const FixtureProcess fixture("place=200,100,400,300 fruit");
  EXPECT_EQ(
      ReportAt({300, 150}),
      HEADING
      L"Name       : 蜜柑\r\n"
      L"Value      : 橙\r\n"
      L"Role       : 独自の役 \r\n"
      L"State      : xFFFFFFFF "
      L"利用不可。チェックされています。押されています。選択されています。読み取り専用。"
      L"展開されています。フロート状態です。フォーカスされています。フォーカス可。サイズ変更可。"
      L"選択可。複数選択可。拡張選択。移動可。リンクされています。\r\n"
      L"KbShortCut : Alt+F\r\n"
      L"Location   : (l:220,t:140,r:420,b:160)\r\n"
      L"ChildCount : 0\r\n"
      L"DefAction  : \r\n"
      L"Description: \r\n"
      L"\r\n"
      L"Id         : 2\r\n"
      L"Object Type: Simple Element\r\n"
      L"\r\n"
      L"Ancestors  : top → bottom\r\n" COLUMNS
      L" \"果物の窓\"\t10:クライアント\t(200,100,600,400)\tChildCount=1\t\"\"\r\n"
      L" \"組\"\t20:グループ化\t(210,110,510,290)\tChildCount=1\t\"\"\r\n"
      L" \"果物の一覧\"\t33:リスト\t(220,120,420,240)\tChildCount=3\t\"蜜柑\"\r\n"
      L"Children   : 0 max=10\r\n" COLUMNS);
}

TEST_F(AcrossProcessesTest, TheObjectOfAWindowIsReported) {
  const FixtureProcess fixture("place=200,100,400,300 fruit");
  settings_.parentChildrenMax = 1;
  const auto handle = static_cast<std::int32_t>(reinterpret_cast<INT_PTR>(fixture.Window()));
  EXPECT_EQ(ReportOf(fixture),
            L"MSAA(MS Active Accessibility)情報\r\n"
            L"　--ウィンドウハンドル(" +
                std::to_wstring(handle) +
                L")から取得\r\n"
                L"　　類 \"題\"\r\n"
                L"---------------------------------------\r\n" + accessible::MemberLines({.name = L"果物の窓", .role = L"10 クライアント", .location = L"l:200,t:100,r:600,b:400", .childCount = L"1"}) + 
                L"Ancestors  : \r\n"
                L"\r\n"
                L"GetParentObject failed\r\n"
                L"\r\n"
                L"Children   : 1 max=1\r\n" COLUMNS
                L" \"組\"\t20:グループ化\t(210,110,510,290)\tChildCount=1\t\"\" "
                L"TypeName=Container\r\n");
}

TEST_F(AcrossProcessesTest, ChildrenAreListedWithTheirOwn) {
  const FixtureProcess fixture("fruit");
  EXPECT_EQ(Children(fixture), L"組\r\n果物の一覧\r\n林檎\r\n蜜柑\r\n追加\r\n");
  settings_.parentChildrenMax = 3;
  EXPECT_EQ(Children(fixture), std::wstring(L"組\r\n果物の一覧\r\n林檎\r\n") + kOmitted);
}

TEST_F(AcrossProcessesTest, ChildrenThatAreObjectsAreCutAfterTheLargestNumber) {
  const FixtureProcess fixture("objects=30");
  settings_.parentChildrenMax = 2;
  EXPECT_EQ(Children(fixture), std::wstring(L"物1\r\n物2\r\n") + kOmitted);
}

TEST_F(AcrossProcessesTest, TreesAreListedFromTheItemAtThePoint) {
  const FixtureProcess fixture("place=200,100,300,200 tree=7");
  EXPECT_EQ(Tree(fixture, {250, 100 + 3 * 16 + 8}),
            L"項目1\r\n\t項目2\r\n\t\t項目3\r\n項目4\r\n\t項目5\r\n\t\t項目6\r\n項目7\r\n");
  // Below the last item is the tree itself.
  EXPECT_EQ(Tree(fixture, {250, 290}),
            L"項目1\r\n項目2\r\n項目3\r\n項目4\r\n項目5\r\n項目6\r\n項目7\r\n");
}

TEST_F(AcrossProcessesTest, LongTreesAreListedInLinearTime) {
  const FixtureProcess fixture("place=200,100,300,200 tree=5000");
  const auto timeOf = [&](int items) {
    session_.running = true;
    session_.yields = 0;
    session_.endAfter = items;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(Lines(Tree(fixture, {250, 108})), static_cast<std::size_t>(items));
    return std::chrono::steady_clock::now() - start;
  };
  timeOf(100);
  // Ten times as many: quadratic would take a hundred times as long.
  const auto few = timeOf(100);
  EXPECT_LT(timeOf(1000), 30 * few);
}

TEST_F(AcrossProcessesTest, ActionsReachTheObjectAtThePoint) {
  const FixtureProcess fixture("place=200,100,400,300 fruit");
  for (const std::int32_t mode : {1, 2, 3}) EXPECT_FALSE(AccActionAt(mode, {300, 130}));
  EXPECT_THAT(fixture.Actions(),
              testing::MatchesRegex("default 1@.*;select 1 1@.*;select 2 1@.*;"));
  EXPECT_THAT(boxes_, IsEmpty());
}

TEST_F(AcrossProcessesTest, ParentsInACircleEnd) {
  const FixtureProcess fixture("place=200,100,400,300 cycle");
  const std::wstring text = ReportAt({300, 170});
  EXPECT_NE(text.find(L"Name       : 追加\r\n"), std::wstring::npos);
  const std::size_t rows = text.find(L"---\r\n \"");
  ASSERT_NE(rows, std::wstring::npos);
  EXPECT_EQ(Lines(text.substr(rows + 5, text.find(L"Children   :") - rows - 5)), 11U);
}

TEST_F(AcrossProcessesTest, EndlessSiblingsAreListedUntilTheCaptureMovesOn) {
  const FixtureProcess fixture("place=200,100,400,300 endless");
  EXPECT_EQ(Lines(Children(fixture)), 11U);
  ObjectAndChild item;
  item.object = GetAccessibleObj(fixture.Window());
  *item.child.Receive() = platform::UniqueVariant(100).Get();
  session_.yields = 0;
  session_.moveOnAfter = 300;
  const std::wstring text = TreeAround(item, settings_, session_.Session());
  EXPECT_EQ(Lines(text), 300U);
  EXPECT_TRUE(text.ends_with(L"・・・中断・・・"));
}

TEST_F(AcrossProcessesTest, ClaimedChildrenEndTheListing) {
  const FixtureProcess fixture("place=200,100,400,300 claims");
  EXPECT_EQ(Children(fixture), L"");
  EXPECT_NE(ReportOf(fixture).find(L"ChildCount : 2000000000\r\n"), std::wstring::npos);
}

TEST_F(AcrossProcessesTest, HugeNamesAreReportedWholeAndListedCut) {
  const FixtureProcess fixture("huge");
  EXPECT_EQ(Children(fixture), std::wstring(50, L'巨') + L".......\r\n");
  ReportOf(fixture);
  EXPECT_EQ(record_.name.size(), 5'000'000U);
}

TEST_F(AcrossProcessesTest, MembersMayFailWithAnyCode) {
  const FixtureProcess fixture("codes");
  const std::wstring text = ReportOf(fixture);
  EXPECT_NE(text.find(L"Name       : \r\n"
                      L"Value      : \r\n"
                      L"Role       : 10 クライアント\r\n"
                      L"State      : x \r\n"
                      L"KbShortCut : \r\n"
                      L"Location   : (l:0,t:0,r:0,b:0)\r\n"
                      L"ChildCount : 0\r\n"
                      L"DefAction  : \r\n"
                      L"Description: \r\n"),
            std::wstring::npos);
  EXPECT_NE(text.find(L"GetParentObject failed"), std::wstring::npos);
  EXPECT_THAT(boxes_, IsEmpty());
}

TEST_F(AcrossProcessesTest, WithoutARoleItIsNoAccessibleObject) {
  const FixtureProcess fixture("place=200,100,400,300 roleless");
  EXPECT_EQ(ReportAt({300, 200}),
            HEADING
            L"\r\n"
            L" %% Not MSAA %%\r\n"
            L"\r\n"
            L"Ancestors  : \r\n"
            L"\r\n"
            L"GetParentObject failed\r\n"
            L"\r\n");
  EXPECT_EQ(record_.name, L"果物の窓");
  EXPECT_THAT(boxes_, IsEmpty());
}

TEST_F(AcrossProcessesTest, AnEdgeBeyond32BitsEndsTheReport) {
  const FixtureProcess fixture("overflow");
  EXPECT_TRUE(ReportOf(fixture).ends_with(L"KbShortCut : \r\n"));
  ASSERT_EQ(boxes_.size(), 1U);
  EXPECT_TRUE(boxes_[0].starts_with(L"GetAccessibleMemberFromPoint|534 "));
}

TEST_F(AcrossProcessesTest, ServersThatDieEndTheirList) {
  const FixtureProcess fixture("place=200,100,300,200 dies");
  const std::wstring text = Tree(fixture, {250, 108});
  EXPECT_TRUE(text.starts_with(L"項目\r\n項目\r\n")) << text.size();
  EXPECT_LE(Lines(text), 3U);
  EXPECT_TRUE(
      gui::WaitFor("the fixture is gone", [&](std::string&) { return !fixture.IsRunning(); }));
  EXPECT_EQ(Children(fixture), L"% 取得エラー！ %");
  EXPECT_EQ(ReportOf(fixture), L"");
}

TEST_F(AcrossProcessesTest, ServersThatDieEndTheirReportEmpty) {
  const FixtureProcess fixture("place=200,100,300,200 dies");
  settings_.parentChildren = 1;
  const std::wstring text = ReportOf(fixture);
  EXPECT_TRUE(text.starts_with(L"MSAA(MS Active Accessibility)情報\r\n"));
  EXPECT_THAT(boxes_, IsEmpty());
}

TEST_F(AcrossProcessesTest, FiveHundredReportsOnHostileServersLeaveNothingBehind) {
  NEEDS(bed::CountersOfWine());
  constexpr const char* kScenes[] = {"fruit", "cycle",    "claims",   "endless",
                                     "codes", "roleless", "overflow", "huge"};
  constexpr std::size_t kHuge = std::size(kScenes) - 1;
  settings_.parentChildrenMax = 3;
  std::deque<FixtureProcess> servers;
  for (const char* const scene : kScenes) {
    servers.emplace_back(std::string("deadline=600 ") + scene);
  }
  const auto report = [&](const FixtureProcess& server) {
    EXPECT_NE(ReportOf(server), L"");
    session_.progress.clear();
    boxes_.clear();
  };
  // Sometimes on a server that dies, and on the one whose texts take long.
  const auto reportOn = [&](std::size_t reports) {
    int deaths = 0;
    for (std::size_t i = 0; i < reports; ++i) {
      // Most of the calls are for the objects around it.
      settings_.parentChildren = i % 5 == 0 ? 1 : 0;
      if (i % 25 == 0) {
        const FixtureProcess mortal("dies");
        report(mortal);
        EXPECT_TRUE(
            gui::WaitFor("the fixture is gone", [&](std::string&) { return !mortal.IsRunning(); }));
        ++deaths;
      } else {
        report(servers[i % 50 == 1 ? kHuge : i % kHuge]);
      }
    }
    return deaths;
  };
  const std::wstring first = ReportOf(servers[0]);
  reportOn(30);
  const gui::Holdings before = gui::OwnHoldings();
  const int deaths = reportOn(500);
  const gui::Holdings after = gui::OwnHoldings();
  std::printf("before: %s | after: %s\n", before.Text().c_str(), after.Text().c_str());
  EXPECT_GT(before.gdiObjects, 0);
  constexpr int kKept = 11;  // events of each server that dies in the middle of a call, by Wine
  EXPECT_TRUE(IsWithin(before, after, {.events = kKept * deaths, .megabytes = 2}));
  settings_.parentChildren = 1;
  EXPECT_EQ(ReportOf(servers[0]), first);
}

}  // namespace
}  // namespace accessible
