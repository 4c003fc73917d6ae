#include "report/ControlReading.h"

#include <optional>

#include "accessibility/AccessibleListing.h"
#include "extract/CaptionItems.h"
#include "extract/ControlText.h"
#include "extract/CsvText.h"
#include "extract/ListBoxItems.h"
#include "extract/ListViewItems.h"
#include "extract/ListViewRows.h"
#include "extract/StringUtilities.h"
#include "extract/TabControlItems.h"
#include "extract/ToolbarItems.h"
#include "extract/TreeViewItems.h"
#include "extract/Win32API_Window.h"
#include "platform/SecondSink.h"
#include "platform/TextSink.h"

namespace report {
namespace {

using extract::Method;
using platform::ItemSink;

struct Reading {
  const HWND hwnd;
  const platform::ReadSession& session;
  const ControlRead& control;
  const settings::Settings& settings;
};

Method ListChildren(const Reading& from, ItemSink& sink) {
  MyAccessible::ListChildren(from.hwnd, from.settings, from.session, sink);
  return extract::kByAccessibleObject;
}

Method ListViewRows(const Reading& from, ItemSink& sink) {
  return extract::GetListViewRows(from.hwnd, from.session, sink, from.settings.listviewCol);
}

Method ComboBoxExItems(const Reading& from, ItemSink& sink) {
  const HWND extended = extract::ComboBoxExOf(from.hwnd);
  return extended == nullptr ? Method{} : extract::GetComboBoxExItem(extended, from.session, sink);
}

// The parts of controls that have no category of their own.
Method PartsOf(const Reading& from, ItemSink& sink) {
  if (extract::ContainsIgnoringCase(from.control.className, L"SysHeader32")) {
    return extract::GetHeaderItem(from.hwnd, from.session, sink);
  }
  if (extract::ContainsIgnoringCase(from.control.className, L"statusbar32")) {
    return extract::GetStatusBarItem(from.hwnd, from.session, sink);
  }
  return {};
}

enum class When { kAlways, kReadingWhole };  // the setting "read whole"

struct Way {
  Category category;
  When when;
  Method (*read)(const Reading& from, ItemSink& sink);
};

// The ways of a category in their order. Documents are read by ReportReaders::Page, and browsers'
// frame windows not at all.
constexpr Way kWays[] = {
    {Category::Edit, When::kAlways,
     [](const Reading& from, ItemSink& sink) {
       return extract::MyGetEditItem(from.hwnd, sink, from.settings.readWhole == 1);
     }},
    {Category::ListBox, When::kAlways,
     [](const Reading& from, ItemSink& sink) {
       return extract::MyGetListBoxItem(from.hwnd, from.session, sink);
     }},
    {Category::ListBox, When::kAlways,
     [](const Reading& from, ItemSink& sink) {
       return extract::ListBoxHasNoTexts(from.hwnd) ? ListChildren(from, sink) : Method{};
     }},
    {Category::ComboBox, When::kAlways,
     [](const Reading& from, ItemSink& sink) {
       return extract::MyGetComboBoxItem(from.hwnd, from.session, sink);
     }},
    {Category::ComboBox, When::kAlways, ComboBoxExItems},
    {Category::ComboBox, When::kAlways,
     [](const Reading& from, ItemSink& sink) {
       return extract::ComboBoxHasNoTexts(from.hwnd) ? ListChildren(from, sink) : Method{};
     }},
    {Category::ComboLBox, When::kAlways,
     [](const Reading& from, ItemSink& sink) {
       ListChildren(from, sink);
       return Method{};
     }},
    {Category::ListView, When::kReadingWhole, ListViewRows},
    {Category::ListView, When::kAlways,
     [](const Reading& from, ItemSink& sink) {
       return extract::GetListViewItem(from.hwnd, from.session, sink, from.settings.listviewCol,
                                       [&from](ItemSink& items) { ListChildren(from, items); });
     }},
    {Category::ListView, When::kAlways, ListViewRows},
    {Category::TreeView, When::kAlways,
     [](const Reading& from, ItemSink& sink) {
       MyAccessible::ListTree(from.hwnd, from.control.readPoint, from.settings, from.session, sink);
       return Method{};
     }},
    {Category::TreeView, When::kAlways,
     [](const Reading& from, ItemSink& sink) {
       return extract::GetTreeViewItem(
           from.hwnd, from.session, sink,
           {from.settings.treeviewIndent == 1, from.settings.accnameMax});
     }},
    {Category::ToolBar, When::kAlways,
     [](const Reading& from, ItemSink& sink) {
       return extract::GetToolbarItem(from.hwnd, from.session, sink);
     }},
    {Category::ToolBar, When::kAlways, ListChildren},
    {Category::TabControl, When::kAlways,
     [](const Reading& from, ItemSink& sink) {
       return extract::GetTabControlItem(from.hwnd, from.session, sink);
     }},
    {Category::ToolTips, When::kAlways,
     [](const Reading&, ItemSink& sink) {
       sink.Text(extract::GetTooltipText());
       return Method{};
     }},
    {Category::Other, When::kAlways,
     [](const Reading& from, ItemSink& sink) {
       return extract::GetOther(
           from.hwnd, [&from](ItemSink& items) { ListChildren(from, items); },
           [&from](ItemSink& parts) { return PartsOf(from, parts); }, sink);
     }},
    {Category::Child, When::kAlways,
     [](const Reading& from, ItemSink& sink) { return extract::GetChildText(from.hwnd, sink); }},
};

constexpr std::int32_t kCommaSeparated = 1;  // of the setting "listview col"

}  // namespace

// Puts in what the first way that gives a text reads, or what the very first way put in.
extract::Method ReadControlItems(Category category, const ControlRead& read,
                                 const settings::Settings& settings, platform::ItemSink& sink) {
  const Reading from{read.hwnd, read.session, read, settings};
  std::optional<Method> first;
  for (const Way& way : kWays) {
    if (way.category != category) continue;
    if (way.when == When::kReadingWhole && from.settings.readWhole != 1) continue;
    if (!first) {
      first = way.read(from, sink);
      if (sink.HasText()) break;
      continue;
    }
    if (!from.session.GoesOn(platform::ReadUntil::kCaptureEnds)) break;
    platform::SecondSink second(sink);
    const Method method = way.read(from, second);
    if (second.HasText()) return method;
  }
  return first.value_or(Method{});
}

extract::TextReading ReadControl(Category category, const ControlRead& read,
                                 const settings::Settings& settings) {
  platform::TextSink sink;
  extract::TextReading reading;
  reading.method = ReadControlItems(category, read, settings, sink);
  reading.whole = sink.Whole();
  reading.restOmitted = sink.Ended() == platform::Ending::kRestOmitted;
  reading.text = sink.Take();
  if (category == Category::ListView && settings.listviewCol == kCommaSeparated) {
    reading.text = extract::ToCsv(reading.text);
  }
  return reading;
}

}  // namespace report
