#include "report/ControlReading.h"

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include "FakeSession.h"
#include "platform/UniqueHandle.h"

namespace report {
namespace {

// Each category's reader on a window of that category.
class ControlReadingTest : public testing::Test {
 protected:
  ControlReadingTest() {
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES};
    InitCommonControlsEx(&classes);
    settings_.parentChildrenMax = 10;
    settings_.accnameMax = 50;
  }

  HWND Make(const wchar_t* className, const wchar_t* text = L"", DWORD style = 0) {
    window_ = platform::UniqueWindow(CreateWindowExW(0, className, text, WS_POPUP | style, 0, 0,
                                                     300, 200, nullptr, nullptr, nullptr, nullptr));
    session_.target = window_.Get();
    return window_.Get();
  }
  extract::TextReading Read(Category category) {
    platform::ReadSession session{session_.target, [](const std::wstring&) {}, [] {},
                                  [] { return true; }};
    return ReadControl(category, {window_.Get(), {-30'000, -30'000}, session}, settings_);
  }
  void Expect(Category category, std::wstring_view method, std::wstring_view text) {
    const extract::TextReading reading = Read(category);
    EXPECT_EQ(reading.method, method);
    EXPECT_EQ(reading.text, text);
  }

  settings::Settings settings_;
  FakeSession session_;
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

}  // namespace
}  // namespace report
