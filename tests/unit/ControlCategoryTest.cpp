#include "report/ControlCategory.h"

#include <gtest/gtest.h>

#include "FakeCapture.h"

namespace report {
namespace {

struct CategoryCase {
  std::wstring_view className;
  Category category;
};

class ControlCategoryTest : public testing::TestWithParam<CategoryCase> {};

TEST_P(ControlCategoryTest, IsTheFirstFragmentContained) {
  EXPECT_EQ(CategoryOf(GetParam().className), GetParam().category);
}

INSTANTIATE_TEST_SUITE_P(
    Classes, ControlCategoryTest,
    testing::Values(
        CategoryCase{L"Edit", Category::Edit}, CategoryCase{L"RichEdit20W", Category::Edit},
        CategoryCase{L"MyEditListBox", Category::Edit},
        CategoryCase{L"ListBoxEdit", Category::Edit}, CategoryCase{L"ListBox", Category::ListBox},
        CategoryCase{L"ThunderListBox", Category::ListBox},
        CategoryCase{L"ComboBox", Category::ComboBox},
        CategoryCase{L"ComboBoxEx32", Category::ComboBox},
        CategoryCase{L"ComboLBox", Category::ComboLBox},
        CategoryCase{L"SysListView32", Category::ListView},
        CategoryCase{L"SysTreeView32", Category::TreeView},
        CategoryCase{L"ToolbarWindow32", Category::ToolBar},
        CategoryCase{L"SysTabControl32", Category::TabControl},
        CategoryCase{L"tooltips_class32", Category::ToolTips},
        CategoryCase{L"Internet Explorer_Server", Category::Ie},
        CategoryCase{L"Internet Explorer_TridentLstBox", Category::Ie},
        CategoryCase{L"Internet Explorer_TridentCmboBx", Category::Ie},
        CategoryCase{L"MicrosoftSilverlight", Category::Ie},
        CategoryCase{L"IEFrame", Category::IeFrame}, CategoryCase{L"#32770", Category::Child},
        CategoryCase{L"Notepad", Category::Other}, CategoryCase{L"", Category::Other},
        // Case counts.
        CategoryCase{L"TLISTBOX", Category::Other}, CategoryCase{L"EDIT", Category::Other},
        CategoryCase{L"TToolBar", Category::Other},
        CategoryCase{L"Tooltips_Class32", Category::Other}));

TEST(DocumentWindowTest, IsTheServerOrWhatAPagesOwnListsSitOn) {
  const HWND target = WindowNumber(5);
  const HWND parent = WindowNumber(4);
  EXPECT_EQ(DocumentWindow(L"Internet Explorer_Server", target, parent), target);
  EXPECT_EQ(DocumentWindow(L"MicrosoftSilverlight", target, parent), target);
  EXPECT_EQ(DocumentWindow(L"Internet Explorer_TridentCmboBx", target, parent), parent);
  EXPECT_EQ(DocumentWindow(L"Internet Explorer_TridentLstBox", target, parent), parent);
  EXPECT_EQ(DocumentWindow(L"Internet Explorer_Hidden", target, parent), nullptr);
}

}  // namespace
}  // namespace report
