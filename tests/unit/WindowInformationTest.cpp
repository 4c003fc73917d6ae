#include "report/WindowInformation.h"

#include <gtest/gtest.h>

#include "FakeCapture.h"
#include "platform/UniqueHandle.h"

namespace report {
namespace {

WindowFacts Facts(int number, const std::wstring& className, const std::wstring& title,
                  const RECT& place) {
  return {WindowNumber(number), className, title, place};
}

TEST(WindowInformationTextTest, ShowsEverythingAboutAWindow) {
  WindowInformation information;
  information.window = Facts(1312948, L"Edit", L"題名", {10, 20, 310, 220});
  information.owner = Facts(4660, L"Shell", L"", {0, 0, 1, 1});
  information.ancestors = {Facts(300, L"Panel", L"", {5, 6, 7, 8}),
                           Facts(200, L"Frame", L"外側", {-1, -2, 3, 4})};
  information.children = {Facts(65640, L"Button", L"OK", {1, 2, 3, 4}),
                          Facts(123456789, std::wstring(30, L'c'), L"", {0, 0, 0, 0})};
  EXPECT_EQ(WindowInformationText(information, L"dec"),
            L"ウィンドウ情報\r\n"
            L"--------------------------------------\r\n"
            L"ハンドル　　　：1312948(x1408B4)\r\n"
            L"クラス名　　　：Edit\r\n"
            L"タイトル　　　：題名\r\n"
            L"位置(左上右下)：(10,20,310,220)\r\n"
            L"\r\n"
            L"オーナー　　  ：\r\n"
            L" 4660(x1234) Shell \"\"\r\n"
            L"\r\n"
            L"親ウィンドウ  ： top → bottom\r\n"
            L" hWnd\tClassName\t(Location)\t\tTitle \r\n"
            L" -----------------------------------------------------------------------\r\n"
            L" 200\tFrame\t(-1,-2,3,4)\t \"外側\"\r\n"
            L" 300\tPanel\t(5,6,7,8)\t\r\n"
            L"\r\n"
            L"子ウィンドウ\r\n"
            L"\r\n"
            L"ハンドル クラス名               位置(左,上,右,下)    表示文字\r\n"
            L"-------------------------------------------------------------\r\n"
            L"   65640 Button                    (1,2,3,4) OK \r\n"
            L"123456789 cccccccccccccccccccccccccccccc (0,0,0,0)  \r\n");
}

TEST(WindowInformationTextTest, HexChangesTheChildrenOnly) {
  WindowInformation information;
  information.window = Facts(255, L"A", L"", {});
  information.ancestors = {Facts(254, L"B", L"", {})};
  information.children = {Facts(253, L"C", L"x", {})};
  const std::wstring text = WindowInformationText(information, L"hex");
  EXPECT_NE(text.find(L"ハンドル　　　：255(xFF)\r\n"), text.npos);
  EXPECT_NE(text.find(L" 254\tB\t"), text.npos);
  EXPECT_NE(text.find(L"     xFD C                         (0,0,0,0) x \r\n"), text.npos);
}

TEST(WindowInformationTextTest, ATopLevelWindowHasNeitherOwnerNorAncestors) {
  WindowInformation information;
  information.window = Facts(1, L"A", L"", {});
  const std::wstring text = WindowInformationText(information, L"dec");
  EXPECT_NE(text.find(L"オーナー　　  ：\r\n\r\n親ウィンドウ"), text.npos);
  EXPECT_NE(text.find(std::wstring(71, L'-') + L"\r\n\r\n子ウィンドウ"), text.npos);
  EXPECT_TRUE(text.ends_with(std::wstring(61, L'-') + L"\r\n"));
}

TEST(ReadWindowInformationTest, AWindowThatIsGoneHasEmptyFacts) {
  for (const HWND gone : {static_cast<HWND>(nullptr), WindowNumber(0x7FFF0001)}) {
    const WindowInformation information = ReadWindowInformation(ReadWindowFacts(gone));
    EXPECT_EQ(information.window.className, L"");
    EXPECT_EQ(information.window.title, L"");
    EXPECT_EQ(information.window.place.right, 0);
    EXPECT_EQ(information.owner.hwnd, nullptr);
    EXPECT_TRUE(information.ancestors.empty());
    EXPECT_TRUE(information.children.empty());
  }
}

platform::UniqueWindow Make(HWND parent, const wchar_t* title, DWORD style) {
  return platform::UniqueWindow(CreateWindowExW(0, L"STATIC", title,
                                                style | (parent != nullptr ? WS_CHILD : WS_POPUP),
                                                10, 20, 30, 40, parent, nullptr, nullptr, nullptr));
}

TEST(ReadWindowInformationTest, ListsAllVisibleDescendantsAndNoOthers) {
  const auto window = Make(nullptr, L"外", WS_VISIBLE);
  const auto shown = Make(window.Get(), L"見える", WS_VISIBLE);
  const auto inside = Make(shown.Get(), L"中", WS_VISIBLE);
  const auto hidden = Make(window.Get(), L"見えない", 0);
  const auto insideHidden = Make(hidden.Get(), L"これも", WS_VISIBLE);
  std::vector<platform::UniqueWindow> many;
  for (int i = 0; i < 50; ++i) many.push_back(Make(window.Get(), L"多", WS_VISIBLE));

  const WindowInformation information = ReadWindowInformation(ReadWindowFacts(window.Get()));
  ASSERT_EQ(information.children.size(), 52U);
  EXPECT_EQ(information.children[0].hwnd, shown.Get());
  EXPECT_EQ(information.children[0].title, L"見える");
  EXPECT_EQ(information.children[1].hwnd, inside.Get());
  for (const WindowFacts& child : information.children) {
    EXPECT_NE(child.hwnd, hidden.Get());
    EXPECT_NE(child.hwnd, insideHidden.Get());
  }
}

TEST(ReadWindowInformationTest, ThePlaceIsWhereTheWindowIsByThen) {
  auto window = Make(nullptr, L"題", 0);
  const WindowFacts facts = ReadWindowFacts(window.Get());
  SetWindowPos(window.Get(), nullptr, 300, 200, 70, 60, SWP_NOZORDER | SWP_NOACTIVATE);
  SetWindowTextW(window.Get(), L"新しい題");
  const WindowFacts moved = ReadWindowInformation(facts).window;
  EXPECT_EQ(moved.place.left, 300);
  EXPECT_EQ(moved.place.bottom, 260);
  EXPECT_EQ(moved.title, L"題");

  window = {};
  const WindowFacts gone = ReadWindowInformation(facts).window;
  EXPECT_EQ(gone.className, L"Static");
  EXPECT_EQ(gone.title, L"題");
  EXPECT_EQ(gone.place.left, 0);
  EXPECT_EQ(gone.place.bottom, 0);
}

TEST(ReadWindowInformationTest, NamesOwnerAndAncestors) {
  const auto owner = Make(nullptr, L"持ち主", 0);
  const platform::UniqueWindow owned(CreateWindowExW(0, L"STATIC", L"持ち物", WS_POPUP, 1, 2, 3, 4,
                                                     owner.Get(), nullptr, nullptr, nullptr));
  const auto child = Make(owned.Get(), L"子", 0);
  EXPECT_EQ(ReadWindowInformation(ReadWindowFacts(owned.Get())).owner.title, L"持ち主");
  const WindowInformation information = ReadWindowInformation(ReadWindowFacts(child.Get()));
  EXPECT_EQ(information.owner.hwnd, nullptr);
  ASSERT_EQ(information.ancestors.size(), 2U);
  EXPECT_EQ(information.ancestors[0].hwnd, owned.Get());
  EXPECT_EQ(information.ancestors[1].hwnd, owner.Get());
}

}  // namespace
}  // namespace report
