// Where the first way gives a text, a control gets its messages and no others.
#include <windows.h>

#include <commctrl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "FakeSession.h"
#include "platform/UniqueHandle.h"
#include "report/ControlReading.h"
#include "report/WindowInformation.h"

namespace report {
namespace {

using testing::ElementsAre;

std::vector<UINT> received;

LRESULT CALLBACK Record(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                        DWORD_PTR) {
  received.push_back(message);
  return DefSubclassProc(hwnd, message, wParam, lParam);
}

class FirstWayTest : public testing::Test {
 protected:
  FirstWayTest() {
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES};
    InitCommonControlsEx(&classes);
    settings_.parentChildrenMax = 10;
    settings_.accnameMax = 50;
  }

  HWND Make(const wchar_t* className, const wchar_t* text = L"", DWORD style = 0) {
    window_ = platform::UniqueWindow(CreateWindowExW(0, className, text, WS_POPUP | style, 0, 0,
                                                     300, 200, nullptr, nullptr, nullptr, nullptr));
    return window_.Get();
  }
  static LRESULT Tell(HWND hwnd, UINT message, WPARAM wParam, const void* lParam) {
    return SendMessageW(hwnd, message, wParam, reinterpret_cast<LPARAM>(lParam));
  }

  // The messages of one reading.
  std::vector<UINT> Messages(Category category) {
    session_.target = window_.Get();
    const platform::ReadSession session{session_.target, [](const std::wstring&) {}, [] {},
                                        [] { return true; }};
    wchar_t className[100] = {};
    GetClassNameW(window_.Get(), className, 100);
    SetWindowSubclass(window_.Get(), Record, 1, 0);
    received.clear();
    const extract::TextReading reading =
        ReadControl(category, {window_.Get(), className, {{-30'000, -30'000}}, session}, settings_);
    RemoveWindowSubclass(window_.Get(), Record, 1);
    EXPECT_FALSE(reading.text.empty());
    return received;
  }

  settings::Settings settings_;
  FakeSession session_;
  platform::UniqueWindow window_;
};

TEST_F(FirstWayTest, Edits) {
  Make(L"EDIT", L"文字");
  EXPECT_THAT(Messages(Category::Edit), ElementsAre(WM_GETTEXT));
}

// Only a text that fills its buffer is asked for its length.
TEST_F(FirstWayTest, EditsWithATextThatFillsTheBuffer) {
  Make(L"EDIT", std::wstring(4095, L'x').c_str(), ES_MULTILINE | ES_AUTOHSCROLL);
  EXPECT_THAT(Messages(Category::Edit), ElementsAre(WM_GETTEXT, WM_GETTEXTLENGTH));
}

TEST_F(FirstWayTest, ListBoxes) {
  Tell(Make(L"LISTBOX"), LB_ADDSTRING, 0, L"項");
  EXPECT_THAT(Messages(Category::ListBox), ElementsAre(LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT));
}

TEST_F(FirstWayTest, ComboBoxes) {
  Tell(Make(L"COMBOBOX", L"", CBS_DROPDOWNLIST), CB_ADDSTRING, 0, L"選択");
  EXPECT_THAT(Messages(Category::ComboBox),
              ElementsAre(CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT));
}

TEST_F(FirstWayTest, ListViews) {
  const HWND list = Make(WC_LISTVIEWW, L"", LVS_REPORT);
  LVCOLUMNW column{};
  column.mask = LVCF_WIDTH;
  Tell(list, LVM_INSERTCOLUMNW, 0, &column);
  wchar_t text[] = L"行";
  LVITEMW item{};
  item.mask = LVIF_TEXT;
  item.pszText = text;
  Tell(list, LVM_INSERTITEMW, 0, &item);
  EXPECT_THAT(Messages(Category::ListView),
              ElementsAre(LVM_GETITEMCOUNT, LVM_GETHEADER, LVM_GETITEMA));
}

TEST_F(FirstWayTest, Toolbars) {
  const HWND toolbar = Make(TOOLBARCLASSNAMEW);
  TBBUTTON button{};
  button.idCommand = 100;
  button.fsStyle = BTNS_BUTTON;
  button.iString = reinterpret_cast<INT_PTR>(L"開く");
  Tell(toolbar, TB_BUTTONSTRUCTSIZE, sizeof button, nullptr);
  Tell(toolbar, TB_ADDBUTTONSW, 1, &button);
  EXPECT_THAT(Messages(Category::ToolBar),
              ElementsAre(TB_BUTTONCOUNT, TB_GETBUTTON, TB_GETBUTTONTEXTA));
}

TEST_F(FirstWayTest, TabControls) {
  const HWND tabs = Make(WC_TABCONTROLW);
  wchar_t text[] = L"札";
  TCITEMW item{};
  item.mask = TCIF_TEXT;
  item.pszText = text;
  Tell(tabs, TCM_INSERTITEMW, 0, &item);
  EXPECT_THAT(Messages(Category::TabControl), ElementsAre(TCM_GETITEMCOUNT, TCM_GETITEMA));
}

// Its caption is the one that the system stores; asked for its text it would have to answer.
TEST_F(FirstWayTest, AWindowThatMayHangIsSentNothing) {
  const HWND window = Make(L"STATIC", L"眠る\n窓");
  SetWindowSubclass(window, Record, 1, 0);
  received.clear();
  const WindowFacts facts = ReadHungWindowFacts(window);
  EXPECT_THAT(received, ElementsAre());
  EXPECT_EQ(facts.hwnd, window);
  EXPECT_EQ(facts.className, L"Static");
  EXPECT_EQ(facts.title, L"眠る\r\n窓");
  EXPECT_EQ(facts.place.right - facts.place.left, 300);
  EXPECT_EQ(ReadWindowFacts(window).title, facts.title);
  EXPECT_THAT(received, testing::Contains(WM_GETTEXT));
  RemoveWindowSubclass(window, Record, 1);
}

}  // namespace
}  // namespace report
