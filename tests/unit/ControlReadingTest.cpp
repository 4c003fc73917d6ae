#include "report/ControlReading.h"

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include "FakeSession.h"
#include "bed/Needs.h"
#include "platform/UniqueHandle.h"

namespace report {
namespace {

// Each category's reader on a window of that category.
class ControlReadingTest : public testing::Test {
 protected:
  ControlReadingTest() {
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES | ICC_USEREX_CLASSES};
    InitCommonControlsEx(&classes);
    settings_.parentChildrenMax = 10;
    settings_.accnameMax = 50;
  }

  HWND Make(const wchar_t* className, const wchar_t* text = L"", DWORD style = 0) {
    window_ =
        platform::UniqueWindow(CreateWindowExW(0, className, text, WS_CHILD | style, 0, 0, 300, 200,
                                               parent_.Get(), nullptr, nullptr, nullptr));
    session_.target = window_.Get();
    return window_.Get();
  }
  extract::TextReading Read(Category category) { return Read(category, window_.Get()); }
  extract::TextReading Read(Category category, HWND hwnd) {
    session_.target = hwnd;
    platform::ReadSession session{session_.target, [](const std::wstring&) {}, [] {},
                                  [] { return true; }};
    wchar_t className[100] = {};
    GetClassNameW(hwnd, className, 100);
    return ReadControl(category, {hwnd, className, {{-30'000, -30'000}}, session}, settings_);
  }
  void Expect(Category category, const std::wstring& method, const std::wstring& text) {
    const extract::TextReading reading = Read(category);
    EXPECT_EQ(reading.method, method);
    EXPECT_EQ(reading.text, text);
  }

  settings::Settings settings_;
  FakeSession session_;
  platform::UniqueWindow parent_{CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 400, 300,
                                                 nullptr, nullptr, nullptr, nullptr)};
  platform::UniqueWindow window_;
};

TEST_F(ControlReadingTest, Edits) {
  Make(L"EDIT", L"文字");
  Expect(Category::Edit, L"WM_GETTEXT", L"文字");
}

TEST_F(ControlReadingTest, ListBoxes) {
  SendMessageW(Make(L"LISTBOX"), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"項"));
  Expect(Category::ListBox, L"LB_GETTEXT", L"項\r\n");
}

TEST_F(ControlReadingTest, ComboBoxes) {
  const HWND combo = Make(L"COMBOBOX", L"", CBS_DROPDOWNLIST);
  SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"選択"));
  Expect(Category::ComboBox, L"CB_GETLBTEXT", L"選択\r\n");
}

TEST_F(ControlReadingTest, DropDownListsAreListedWithoutAMethod) {
  Make(L"STATIC", L"箱");
  Expect(Category::ComboLBox, L"", L"");
}

TEST_F(ControlReadingTest, TreesWithoutAnObjectGiveTheirMark) {
  Make(WC_TREEVIEWW);
  Expect(Category::TreeView, L"", L"% 取得エラー！ %");
}

TEST_F(ControlReadingTest, RowsOfAListViewMayBeSeparatedByCommas) {
  const HWND list = Make(WC_LISTVIEWW, L"", LVS_REPORT);
  LVCOLUMNW column{};
  column.mask = LVCF_WIDTH;
  column.cx = 50;
  SendMessageW(list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  SendMessageW(list, LVM_INSERTCOLUMNW, 1, reinterpret_cast<LPARAM>(&column));
  wchar_t text[] = L"a,b";
  LVITEMW item{};
  item.mask = LVIF_TEXT;
  item.pszText = text;
  SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
  Expect(Category::ListView, L"LVM_GETITEMW", L"a,b\t\r\n");
  settings_.listviewCol = 1;
  Expect(Category::ListView, L"LVM_GETITEMW", L"\"a,b\",\r\n\r\n");
  settings_.listviewCol = 2;
  Expect(Category::ListView, L"LVM_GETITEMW", L"a,b\r\n");
}

TEST_F(ControlReadingTest, Toolbars) {
  NEEDS(bed::CodePage932());
  const HWND toolbar = Make(TOOLBARCLASSNAMEW);
  TBBUTTON button{};
  button.idCommand = 100;
  button.fsStyle = BTNS_BUTTON;
  button.iString = reinterpret_cast<INT_PTR>(L"開く");
  SendMessageW(toolbar, TB_BUTTONSTRUCTSIZE, sizeof button, 0);
  SendMessageW(toolbar, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button));
  Expect(Category::ToolBar, L"TB_GETBUTTON", L"開く\r\n");
}

TEST_F(ControlReadingTest, TabControls) {
  NEEDS(bed::CodePage932());
  const HWND tabs = Make(WC_TABCONTROLW);
  wchar_t text[] = L"札";
  TCITEMW item{};
  item.mask = TCIF_TEXT;
  item.pszText = text;
  SendMessageW(tabs, TCM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
  Expect(Category::TabControl, L"TCM_GETITEM", L"札\r\n");
}

TEST_F(ControlReadingTest, WindowsOfNoKnownKindAndDialogs) {
  Make(L"STATIC", L"窓");
  const platform::UniqueWindow child(CreateWindowExW(0, L"STATIC", L"子", WS_CHILD, 0, 0, 9, 9,
                                                     window_.Get(), nullptr, nullptr, nullptr));
  Expect(Category::Other, L"Accessible", L"窓子\r\n");
  Expect(Category::Child, L"Accessible", L"窓子\r\n");
}

TEST_F(ControlReadingTest, PagesAndTheirFramesHaveNoReader) {
  Make(L"STATIC", L"窓");
  Expect(Category::Ie, L"", L"");
  Expect(Category::IeFrame, L"", L"");
}

HTREEITEM AddTo(HWND tree, HTREEITEM parent, const wchar_t* text) {
  TVINSERTSTRUCTW insert{};
  insert.hParent = parent;
  insert.hInsertAfter = TVI_LAST;
  insert.item.mask = TVIF_TEXT;
  insert.item.pszText = const_cast<wchar_t*>(text);
  return reinterpret_cast<HTREEITEM>(
      SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
}

TEST_F(ControlReadingTest, TreesWithoutAnObjectAreReadByMessages) {
  const HWND tree = Make(WC_TREEVIEWW);
  const HTREEITEM root = AddTo(tree, TVI_ROOT, L"根");
  AddTo(tree, root, L"枝");
  AddTo(tree, TVI_ROOT, L"二");
  Expect(Category::TreeView, L"TVM_GETITEMW", L"根\r\n枝\r\n二\r\n");
  settings_.treeviewIndent = 1;
  settings_.accnameMax = 0;
  Expect(Category::TreeView, L"TVM_GETITEMW", L".......\r\n\t.......\r\n.......\r\n");
}

TEST_F(ControlReadingTest, IconsOfAListViewAreReadByMessages) {
  const HWND list = Make(WC_LISTVIEWW, L"", LVS_ICON);
  wchar_t text[] = L"絵";
  LVITEMW item{};
  item.mask = LVIF_TEXT;
  item.pszText = text;
  SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
  Expect(Category::ListView, L"LVM_GETITEMW", L"絵\r\n");
}

TEST_F(ControlReadingTest, HeadersAndStatusBarsAreReadPartByPart) {
  const HWND header = Make(WC_HEADERW);
  wchar_t text[] = L"見出し";
  HDITEMW column{};
  column.mask = HDI_TEXT;
  column.pszText = text;
  SendMessageW(header, HDM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&column));
  SendMessageW(header, HDM_INSERTITEMW, 1, reinterpret_cast<LPARAM>(&column));
  Expect(Category::Other, L"HDM_GETITEMW", L"見出し\r\n見出し\r\n");

  const HWND bar = Make(STATUSCLASSNAMEW);
  const int edges[] = {50, 100, -1};
  SendMessageW(bar, SB_SETPARTS, 3, reinterpret_cast<LPARAM>(edges));
  SendMessageW(bar, SB_SETTEXTW, 0, reinterpret_cast<LPARAM>(L"準備"));
  SendMessageW(bar, SB_SETTEXTW, 2, reinterpret_cast<LPARAM>(L"\t行 1"));
  Expect(Category::Other, L"SB_GETTEXTW", L"準備\r\n\r\n行 1\r\n");
}

// The combo box in it holds no strings.
TEST_F(ControlReadingTest, ExtendedComboBoxesAreReadByTheirOwnMessage) {
  const HWND combo = Make(WC_COMBOBOXEXW, L"", CBS_DROPDOWNLIST);
  wchar_t text[] = L"大";
  COMBOBOXEXITEMW item{};
  item.mask = CBEIF_TEXT;
  item.iItem = -1;
  item.pszText = text;
  SendMessageW(combo, CBEM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
  EXPECT_EQ(Read(Category::ComboBox).text, L"大\r\n");
  const extract::TextReading inner =
      Read(Category::ComboBox, FindWindowExW(combo, nullptr, L"ComboBox", nullptr));
  EXPECT_EQ(inner.method, L"CBEM_GETITEMW");
  EXPECT_EQ(inner.text, L"大\r\n");
}

// An ordinary list without items is not searched for anything else.
TEST_F(ControlReadingTest, EmptyListsStayEmpty) {
  Make(L"LISTBOX", L"題");
  Expect(Category::ListBox, L"LB_GETTEXT", L"");
  Make(L"COMBOBOX", L"", CBS_DROPDOWNLIST);
  Expect(Category::ComboBox, L"CB_GETLBTEXT", L"");
  Make(WC_TREEVIEWW);
  Expect(Category::TreeView, L"", L"% 取得エラー！ %");
  Make(WC_LISTVIEWW, L"", LVS_REPORT);
  Expect(Category::ListView, L"", L"");
}

TEST_F(ControlReadingTest, ATextIsReadToItsEndWhenTheUserAsksForIt) {
  std::wstring text;
  for (int line = 0; line < 1000; ++line) text += std::wstring(98, L'長') + L"\r\n";
  Make(L"EDIT", text.c_str(), ES_MULTILINE);
  const extract::TextReading usual = Read(Category::Edit);
  EXPECT_EQ(usual.text, text.substr(0, 4095));
  EXPECT_EQ(usual.whole, 100'000U);
  settings_.readWhole = 1;
  const extract::TextReading whole = Read(Category::Edit);
  EXPECT_EQ(whole.text, text);
  EXPECT_EQ(whole.whole, 0U);
  EXPECT_EQ(whole.method, L"WM_GETTEXT");
}

TEST_F(ControlReadingTest, ATextThatJustFitsIsWhole) {
  Make(L"EDIT", std::wstring(4095, L'x').c_str(), ES_MULTILINE);
  EXPECT_EQ(Read(Category::Edit).whole, 0U);
}

TEST_F(ControlReadingTest, CellsAreReadToTheirEndWhenTheUserAsksForIt) {
  const HWND list = Make(WC_LISTVIEWW, L"", LVS_REPORT);
  LVCOLUMNW column{};
  column.mask = LVCF_WIDTH;
  column.cx = 50;
  SendMessageW(list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  std::wstring text(1000, L'長');
  LVITEMW item{};
  item.mask = LVIF_TEXT;
  item.pszText = text.data();
  SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
  EXPECT_LT(Read(Category::ListView).text.size(), 300U);
  settings_.readWhole = 1;
  Expect(Category::ListView, L"LVM_GETITEMW", text + L"\r\n");
}

}  // namespace
}  // namespace report
