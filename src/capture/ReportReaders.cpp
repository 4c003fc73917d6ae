#include "capture/ReportReaders.h"

namespace capture {
namespace {

struct CategoryReader {
  Category category;
  std::wstring (ReportReaders::*read)(const CategoryRead& read);
};

// Documents are read by a way of their own, and their frame windows not at all.
constexpr CategoryReader kReaders[] = {
    {Category::Edit, &ReportReaders::MyGetEditItem},
    {Category::ListBox, &ReportReaders::MyGetListBoxItem},
    {Category::ComboBox, &ReportReaders::MyGetComboBoxItem},
    {Category::ComboLBox, &ReportReaders::AccessibleChildren},
    {Category::ListView, &ReportReaders::GetListViewItem},
    {Category::TreeView, &ReportReaders::AccessibleTree},
    {Category::ToolBar, &ReportReaders::GetToolbarItem},
    {Category::TabControl, &ReportReaders::GetTabControlItem},
    {Category::ToolTips, &ReportReaders::GetTooltipText},
    {Category::Other, &ReportReaders::GetOther},
    {Category::Child, &ReportReaders::GetChildText},
};

}  // namespace

std::wstring ReadByCategory(ReportReaders& readers, Category category, const CategoryRead& read) {
  for (const CategoryReader& row : kReaders) {
    if (row.category == category) return (readers.*row.read)(read);
  }
  return {};
}

}  // namespace capture
