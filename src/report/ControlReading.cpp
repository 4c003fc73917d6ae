#include "report/ControlReading.h"

#include "accessibility/AccessibleListing.h"
#include "extract/ControlText.h"
#include "extract/CsvText.h"
#include "extract/ListBoxItems.h"
#include "extract/ListViewItems.h"
#include "extract/TabControlItems.h"
#include "extract/ToolbarItems.h"
#include "platform/TextSink.h"

namespace report {
namespace {

using extract::Method;
using platform::ItemSink;

struct Reading {
  const HWND hwnd;
  const ControlRead& control;
  const settings::Settings& settings;

  void ListChildren(ItemSink& sink) const {
    MyAccessible::ListChildren(hwnd, settings, control.session, sink);
  }
};

struct CategoryReader {
  Category category;
  Method (*read)(const Reading& from, ItemSink& sink);
};

// Documents are read by ReportReaders::Page, and browsers' frame windows not at all.
constexpr CategoryReader kReaders[] = {
    {Category::Edit,
     [](const Reading& from, ItemSink& sink) { return extract::MyGetEditItem(from.hwnd, sink); }},
    {Category::ListBox,
     [](const Reading& from, ItemSink& sink) {
       return extract::MyGetListBoxItem(from.hwnd, from.control.session, sink);
     }},
    {Category::ComboBox,
     [](const Reading& from, ItemSink& sink) {
       return extract::MyGetComboBoxItem(from.hwnd, from.control.session, sink);
     }},
    {Category::ComboLBox,
     [](const Reading& from, ItemSink& sink) {
       from.ListChildren(sink);
       return Method{};
     }},
    {Category::ListView,
     [](const Reading& from, ItemSink& sink) {
       return extract::GetListViewItem(from.hwnd, from.control.session, sink,
                                       from.settings.listviewCol,
                                       [&from](ItemSink& items) { from.ListChildren(items); });
     }},
    {Category::TreeView,
     [](const Reading& from, ItemSink& sink) {
       MyAccessible::ListTree(from.hwnd, from.control.point, from.settings, from.control.session,
                              sink);
       return Method{};
     }},
    {Category::ToolBar,
     [](const Reading& from, ItemSink& sink) {
       return extract::GetToolbarItem(from.hwnd, from.control.session, sink);
     }},
    {Category::TabControl,
     [](const Reading& from, ItemSink& sink) {
       return extract::GetTabControlItem(from.hwnd, from.control.session, sink);
     }},
    {Category::ToolTips,
     [](const Reading&, ItemSink& sink) {
       sink.Text(extract::GetTooltipText());
       return Method{};
     }},
    {Category::Other,
     [](const Reading& from, ItemSink& sink) {
       return extract::GetOther(
           from.hwnd, [&from](ItemSink& items) { from.ListChildren(items); }, sink);
     }},
    {Category::Child,
     [](const Reading& from, ItemSink& sink) { return extract::GetChildText(from.hwnd, sink); }},
};

constexpr std::int32_t kCommaSeparated = 1;  // of the setting "listview col"

}  // namespace

extract::TextReading ReadControl(Category category, const ControlRead& read,
                                 const settings::Settings& settings) {
  for (const CategoryReader& row : kReaders) {
    if (row.category != category) continue;
    platform::TextSink sink;
    const Method method = row.read({read.hwnd, read, settings}, sink);
    std::wstring text = sink.Take();
    if (category == Category::ListView && settings.listviewCol == kCommaSeparated) {
      text = extract::ToCsv(text);
    }
    return {std::move(text), std::wstring(method)};
  }
  return {};
}

}  // namespace report
