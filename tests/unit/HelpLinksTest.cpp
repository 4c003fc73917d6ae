#include "ui/HelpLinks.h"

#include <windows.h>

#include <shlwapi.h>

#include <gtest/gtest.h>

#include <string>

namespace ui {
namespace {

struct Case {
  const wchar_t* folder;
  const wchar_t* page;
};

constexpr Case kCases[] = {
    {L"C:\\Tools\\Velmora", L"file:///C:/Tools/Velmora/help/index.html"},
    {L"C:\\Program Files (x86)\\V", L"file:///C:/Program%20Files%20(x86)/V/help/index.html"},
    {L"D:\\列取得\\表示", L"file:///D:/列取得/表示/help/index.html"},
    {L"C:\\C# 100%", L"file:///C:/C%23%20100%25/help/index.html"},
    {L"C:\\a,b;c=d^[e]{f}`", L"file:///C:/a%2Cb%3Bc%3Dd%5E%5Be%5D%7Bf%7D%60/help/index.html"},
    {L"C:\\it's_-._~!$&+@", L"file:///C:/it's_-._~!$&+@/help/index.html"},
    {L"\\\\server\\share\\V", L"file://server/share/V/help/index.html"},
};

TEST(HelpLinksTest, PageBesideTheProgramIsAnAddress) {
  for (const Case& one : kCases) {
    EXPECT_EQ(HelpAddress(one.folder), one.page);
    EXPECT_EQ(HomeAddress(one.folder), std::wstring(one.page) + L"#about");
  }
}

// The system turns the address back into the path of the page.
TEST(HelpLinksTest, AddressLeadsBackToThePath) {
  for (const Case& one : kCases) {
    wchar_t path[MAX_PATH] = {};
    DWORD length = MAX_PATH;
    ASSERT_EQ(PathCreateFromUrlW(HelpAddress(one.folder).c_str(), path, &length, 0), S_OK);
    EXPECT_EQ(path, std::wstring(one.folder) + L"\\help\\index.html");
  }
}

}  // namespace
}  // namespace ui
