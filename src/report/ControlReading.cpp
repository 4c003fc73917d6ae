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
  const ControlRead& control;
  const settings::Settings& settings;

  void ListChildren(ItemSink& sink) const {
    MyAccessible::ListChildren(control.hwnd, settings, control.session, sink);
  }
};

Method Edit(const Reading& reading, ItemSink& sink) {
  return extract::MyGetEditItem(reading.control.hwnd, sink);
}

Method ListBox(const Reading& reading, ItemSink& sink) {
  return extract::MyGetListBoxItem(reading.control.hwnd, reading.control.session, sink);
}

Method ComboBox(const Reading& reading, ItemSink& sink) {
  return extract::MyGetComboBoxItem(reading.control.hwnd, reading.control.session, sink);
}

Method DropDownList(const Reading& reading, ItemSink& sink) {
  reading.ListChildren(sink);
  return {};
}

Method ListView(const Reading& reading, ItemSink& sink) {
  return extract::GetListViewItem(
      reading.control.hwnd, reading.control.session, sink, reading.settings.listviewCol,
      [&reading](ItemSink& children) { reading.ListChildren(children); });
}

Method TreeView(const Reading& reading, ItemSink& sink) {
  MyAccessible::ListTree(reading.control.hwnd, reading.control.point, reading.settings,
                         reading.control.session, sink);
  return {};
}

Method Toolbar(const Reading& reading, ItemSink& sink) {
  return extract::GetToolbarItem(reading.control.hwnd, reading.control.session, sink);
}

Method TabControl(const Reading& reading, ItemSink& sink) {
  return extract::GetTabControlItem(reading.control.hwnd, reading.control.session, sink);
}

Method ToolTips(const Reading&, ItemSink& sink) {
  sink.Text(extract::GetTooltipText());
  return {};
}

Method Other(const Reading& reading, ItemSink& sink) {
  return extract::GetOther(
      reading.control.hwnd, [&reading](ItemSink& children) { reading.ListChildren(children); },
      sink);
}

Method Child(const Reading& reading, ItemSink& sink) {
  return extract::GetChildText(reading.control.hwnd, sink);
}

struct CategoryReader {
  Category category;
  Method (*read)(const Reading& reading, ItemSink& sink);
};

// Documents are read by ReportReaders::Page, and browsers' frame windows not at all.
constexpr CategoryReader kReaders[] = {
    {Category::Edit, Edit},         {Category::ListBox, ListBox},
    {Category::ComboBox, ComboBox}, {Category::ComboLBox, DropDownList},
    {Category::ListView, ListView}, {Category::TreeView, TreeView},
    {Category::ToolBar, Toolbar},   {Category::TabControl, TabControl},
    {Category::ToolTips, ToolTips}, {Category::Other, Other},
    {Category::Child, Child},
};

constexpr std::int32_t kCommaSeparated = 1;  // of the setting "listview col"

}  // namespace

extract::TextReading ReadControl(Category category, const ControlRead& read,
                                 const settings::Settings& settings) {
  for (const CategoryReader& row : kReaders) {
    if (row.category != category) continue;
    platform::TextSink sink;
    const Method method = row.read({read, settings}, sink);
    std::wstring text = sink.Take();
    if (category == Category::ListView && settings.listviewCol == kCommaSeparated) {
      text = extract::ToCsv(text);
    }
    return {std::move(text), std::wstring(method)};
  }
  return {};
}

}  // namespace report
