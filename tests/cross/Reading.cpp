#include "Reading.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

#include "../ReadItems.h"
#include "accessibility/AccessibleListing.h"
#include "driver/Text.h"
#include "extract/CaptionItems.h"
#include "extract/ListBoxItems.h"
#include "extract/ListViewItems.h"
#include "extract/ListViewRows.h"
#include "extract/TabControlItems.h"
#include "extract/ToolbarItems.h"
#include "extract/TreeViewItems.h"
#include "platform/TextCodec.h"

namespace cross {
namespace {

// A system without 64-bit support.
class Plain32Bit : public MyMapView::MemoryCalls {
 public:
  FARPROC GetProcAddress(HMODULE, const char*) override { return nullptr; }
};

extract::Method ReadListView(HWND hwnd, const platform::ReadSession& session,
                             platform::ItemSink& sink, const extract::ControlAccess& access) {
  return extract::GetListViewItem(
      hwnd, session, sink, 0,
      [&](platform::ItemSink& children) {
        settings::Settings settings;
        settings.parentChildrenMax = 100;
        settings.accnameMax = 50;
        MyAccessible::ListChildren(hwnd, settings, session, children);
      },
      access);
}

extract::Method ReadRows(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                         const extract::ControlAccess& access) {
  return extract::GetListViewRows(hwnd, session, sink, 0, access);
}

extract::Method ReadTree(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                         const extract::ControlAccess& access) {
  return extract::GetTreeViewItem(hwnd, session, sink, {true, 1'000'000}, access);
}

std::wstring Lines(const Contents& contents, std::size_t bytes) {
  std::wstring text;
  for (int i = 0; i < contents.Count(); ++i) {
    const std::wstring item = contents.Item(i);
    text += (bytes == 0 ? item : ThroughBlock(item, bytes)) + L"\r\n";
  }
  return text;
}

std::wstring WholeLines(const Contents& contents) { return Lines(contents, 0); }

// The control leaves the last byte of the block for the end of the text.
std::wstring TabLines(const Contents& contents) { return Lines(contents, 255); }

std::wstring ToolbarLines(const Contents& contents) {
  std::wstring text;
  for (int i = 0; i < contents.Count(); ++i) {
    const std::wstring item = ThroughBlock(contents.Item(i), 121);
    if (!item.empty()) text += item + L"\r\n";
  }
  return text;
}

std::wstring TableLines(const Contents& contents) {
  std::wstring text;
  bool any = false;
  for (int row = 0; row < contents.Count(); ++row) {
    for (int column = 0; column < kColumns; ++column) {
      const std::wstring cell = ThroughBlock(contents.Cell(row, column), 256);
      any = any || !cell.empty();
      text += (column > 0 ? L"\t" : L"") + cell;
    }
    text += L"\r\n";
  }
  // Wine's own list views have an accessible object without children.
  return any ? text : std::wstring();
}

std::wstring WholeTable(const Contents& contents) {
  std::wstring text;
  for (int row = 0; row < contents.Count(); ++row) {
    for (int column = 0; column < kColumns; ++column) {
      text += (column > 0 ? L"\t" : L"") + contents.Cell(row, column);
    }
    text += L"\r\n";
  }
  return text;
}

std::wstring TreeLines(const Contents& contents) {
  std::wstring text;
  for (int i = 0; i < contents.Count(); ++i) {
    text += std::wstring(static_cast<std::size_t>(i % 3), L'\t') + contents.Item(i) + L"\r\n";
  }
  return text;
}

struct Kind {
  std::string_view name;
  ItemReader read;
  std::wstring (*expected)(const Contents& contents);
  std::wstring_view label;
};

constexpr Kind kKinds[] = {
    {"listbox", extract::MyGetListBoxItem, WholeLines, L"LB_GETTEXT"},
    {"simplecombo", extract::MyGetComboBoxItem, WholeLines, L"CB_GETLBTEXT"},
    {"dropdown", extract::MyGetComboBoxItem, WholeLines, L"CB_GETLBTEXT"},
    {"dropdownlist", extract::MyGetComboBoxItem, WholeLines, L"CB_GETLBTEXT"},
    {"listview", ReadListView, TableLines, L"LVM_GETITEMW"},
    {"ownerdata", ReadListView, TableLines, L"LVM_GETITEMW"},
    {"toolbar", extract::GetToolbarItem, ToolbarLines, L"TB_GETBUTTON"},
    {"tabs", extract::GetTabControlItem, TabLines, L"TCM_GETITEM"},
    {"rows", ReadRows, WholeTable, L"LVM_GETITEMW"},
    {"ownerrows", ReadRows, WholeTable, L"LVM_GETITEMW"},
    {"tree", ReadTree, TreeLines, L"TVM_GETITEMW"},
    {"header", extract::GetHeaderItem, WholeLines, L"HDM_GETITEMW"},
    {"status", extract::GetStatusBarItem, WholeLines, L"SB_GETTEXTW"},
    {"comboex", extract::GetComboBoxExItem, WholeLines, L"CBEM_GETITEMW"},
};

const Kind& KindOf(std::string_view name) {
  for (const Kind& kind : kKinds) {
    if (kind.name == name) return kind;
  }
  throw std::out_of_range("no such kind of control");
}

}  // namespace

Reading Read(const std::string& kind, HWND control, const Circumstances& circumstances) {
  Reading reading;
  HWND target = control;
  const platform::ReadSession session{
      target, [&](const std::wstring& text) { reading.progress.push_back(text); },
      [&] {
        if (!circumstances.stays(++reading.yields)) target = nullptr;
      },
      [] { return true; }};
  Plain32Bit plain;
  const extract::ControlAccess access{
      extract::SystemAccess().messages,
      circumstances.as32BitSystem ? plain : MyMapView::SystemMemoryCalls()};
  reading.text = ReadText(KindOf(kind).read, control, session, reading.method, access);
  return reading;
}

std::wstring ExpectedText(const std::string& kind, const Contents& contents) {
  return KindOf(kind).expected(contents);
}

std::wstring Label(const std::string& kind) { return std::wstring(KindOf(kind).label); }

std::wstring ThroughBlock(const std::wstring& text, std::size_t bytes) {
  std::wstring fitting = text.substr(0, bytes);
  while (platform::ToAnsi(fitting).size() > bytes) fitting.pop_back();
  return platform::FromAnsi(platform::ToAnsi(fitting));
}

std::string Shown(const std::wstring& text) {
  std::wstring part = text.substr(0, 24);
  std::replace_if(
      part.begin(), part.end(), [](wchar_t character) { return character < L' '; }, L'.');
  return std::to_string(text.size()) + " characters: " + gui::ToUtf8(part);
}

}  // namespace cross
