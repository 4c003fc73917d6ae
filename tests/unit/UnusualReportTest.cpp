// Unusual reports: on a child that holds an object, and with a negative largest number.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "../ReadItems.h"
#include "../accessible/AccessibleNode.h"
#include "FakeSession.h"
#include "MessageBoxes.h"
#include "accessibility/AccessibleListing.h"
#include "accessibility/AccessibleReport.h"
#include "accessibility/AccessibleRows.h"

namespace MyAccessible {
namespace {

using accessible::Node;
using testing::IsEmpty;

#define HEADING                              \
  L"MSAA(MS Active Accessibility)情報\r\n" \
  L"---------------------------------------\r\n"
#define COLUMNS                                                       \
  L" accName\taccRole:Text\t( Location )\tChildCount=n\taccValue\r\n" \
  L" ----------------------------------------------------------\r\n"

// A shelf in a shop, and a basket with an apple and a leaf in it.
class UnusualReportTest : public testing::Test {
 protected:
  UnusualReportTest() {
    settings_.parentChildren = 1;
    settings_.parentChildrenMax = 10;
    settings_.accnameMax = 50;
    shop_.AddObject(shelf_);
    basket_.AddElement({.name = L"林檎", .value = L"赤", .role = ROLE_SYSTEM_LISTITEM});
    basket_.AddObject(leaf_);
  }
  ~UnusualReportTest() override {
    EXPECT_THAT(boxes_.shown, IsEmpty());
    for (const Node* const node : {&shop_, &shelf_, &basket_, &leaf_}) {
      EXPECT_EQ(node->References(), 1U);
    }
  }

  std::wstring Report(Node& object, Node* held) {
    ObjectAndChild found;
    object.AddRef();
    *found.object.GetAddressOf() = &object;
    VARIANT& child = *found.child.Receive();
    if (held == nullptr) {
      child = Self();
    } else {
      held->AddRef();
      child.vt = VT_DISPATCH;
      child.pdispVal = held;
    }
    return ReportOf(record_, {}, found, settings_, session_.Session());
  }

  Node shop_{{.name = L"店", .role = ROLE_SYSTEM_WINDOW, .place = {0, 0, 640, 480}}};
  Node shelf_{{.name = L"棚",
               .value = L"上段",
               .role = ROLE_SYSTEM_GROUPING,
               .state = 0x40,
               .place = {5, 15, 200, 100},
               .description = L"木の棚",
               .defaultAction = L"開く",
               .keyboardShortcut = L"Alt+T"}};
  Node basket_{{.name = L"籠", .role = ROLE_SYSTEM_LIST}};
  Node leaf_{{.name = L"葉", .value = L"緑", .role = ROLE_SYSTEM_PUSHBUTTON}};
  MessageBoxes boxes_;
  FakeSession session_;
  settings::Settings settings_;
  AccessibleFacts record_;
};

constexpr const wchar_t* kShelf =
    L"Name       : 棚\r\n"
    L"Value      : 上段\r\n"
    L"Role       : 20 グループ化\r\n"
    L"State      : x40 読み取り専用。\r\n"
    L"KbShortCut : Alt+T\r\n"
    L"Location   : (l:5,t:15,r:205,b:115)\r\n";

// Members are read from the object for that child; children are counted in the child.
TEST_F(UnusualReportTest, AChildThatHoldsAnObject) {
  shelf_.answersEveryChild = true;
  EXPECT_EQ(Report(shelf_, &basket_),
            std::wstring(HEADING) + kShelf +
                L"ChildCount : 2\r\n"
                L"DefAction  : 開く\r\n"
                L"Description: 木の棚\r\n"
                L"\r\n"
                L"Id         : 0\r\n"
                L"Object Type: Container\r\n"
                L"\r\n"
                L"Ancestors  : top → bottom\r\n" COLUMNS
                L" \"店\"\t9:ウィンドウ\t(0,0,640,480)\tChildCount=1\t\"\"\r\n"
                L" \"棚\"\t20:グループ化\t(5,15,205,115)\tChildCount=0\t\"棚\"\r\n"
                L"Children   : 2 max=10\r\n" COLUMNS
                L" \"林檎\"\t34:リスト項目\t(0,0,0,0)\tChildCount=0\t\"赤\"\r\n"
                L" \"葉\"\t43:ボタン\t(0,0,0,0)\tChildCount=0\t\"緑\" TypeName=Real Object\r\n");
}

TEST_F(UnusualReportTest, AHeldObjectWithoutChildrenIsARealObject) {
  shelf_.answersEveryChild = true;
  const std::wstring text = Report(shelf_, &leaf_);
  EXPECT_NE(text.find(L"ChildCount : 0\r\n"), std::wstring::npos);
  EXPECT_NE(text.find(L"Object Type: Real Object\r\n"), std::wstring::npos);
  EXPECT_TRUE(text.ends_with(L"Children   : 0 max=10\r\n" COLUMNS)) << text;
}

// As with the largest number 0.
TEST_F(UnusualReportTest, ANegativeLargestNumberListsNothing) {
  for (const std::int32_t max : {0, -1, -10, std::numeric_limits<std::int32_t>::min()}) {
    settings_.parentChildrenMax = max;
    EXPECT_EQ(Report(shelf_, nullptr), std::wstring(HEADING) + kShelf +
                                           L"ChildCount : 0\r\n"
                                           L"DefAction  : 開く\r\n"
                                           L"Description: 木の棚\r\n"
                                           L"\r\n"
                                           L"Id         : 0\r\n"
                                           L"Object Type: Container\r\n"
                                           L"\r\n"
                                           L"\r\n"
                                           L"Parents    : 取得最大個数は０になっています\r\n"
                                           L"\r\n"
                                           L"Children 　: 取得最大個数は０になっています")
        << max;
  }
}

TEST_F(UnusualReportTest, ANegativeLargestNumberListsNoRowsAndNoChildren) {
  const platform::ReadSession session = session_.Session();
  for (const std::int32_t max : {-1, std::numeric_limits<std::int32_t>::min()}) {
    settings_.parentChildrenMax = max;
    EXPECT_EQ(AncestorRows(&shelf_, Self(), settings_, session), L"") << max;
    EXPECT_EQ(ChildrenOf(&basket_, settings_, session),
              L"-- 以下省略 -- 個数変更：[設定]→[MSAA] …Child最大取得個数\r\n")
        << max;
  }
  EXPECT_EQ(session_.yields, 0);
}

}  // namespace
}  // namespace MyAccessible
