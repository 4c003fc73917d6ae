#include "OtherReading.h"

#include <commctrl.h>

#include <cstdint>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "ListFixture.h"
#include "Reading.h"
#include "TargetRoom.h"
#include "bed/Needs.h"
#include "driver/Owners.h"

namespace cross {
namespace {

// Lists whose owner draws the items may hold values of the owner's in place of texts.
bool HoldsTexts(HWND control, LONG_PTR hasTexts) {
  const LONG_PTR style = GetWindowLongPtrW(control, GWL_STYLE);
  return (style & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE)) == 0 || (style & hasTexts) != 0;
}

std::wstring ListItems(HWND control, UINT count, UINT length, UINT text) {
  std::wstring result;
  const int items = Ask(control, count);
  for (int i = 0; i < items; ++i) {
    const WPARAM item = static_cast<WPARAM>(i);
    std::vector<wchar_t> buffer(static_cast<std::size_t>(Ask(control, length, item)) + 1000);
    Ask(control, text, item, reinterpret_cast<LPARAM>(buffer.data()));
    result += buffer.data();
    result += L"\r\n";
  }
  return result;
}

std::wstring ListBoxItems(HWND control) {
  if (!HoldsTexts(control, LBS_HASSTRINGS)) return {};
  return ListItems(control, LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT);
}

std::wstring ComboBoxItems(HWND control) {
  if (!HoldsTexts(control, CBS_HASSTRINGS)) return {};
  return ListItems(control, CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT);
}

std::wstring ListViewItems(HWND control) {
  const int rows = Ask(control, LVM_GETITEMCOUNT);
  HWND header = FindWindowExW(control, nullptr, WC_HEADERW, nullptr);
  const int columns = header == nullptr ? 0 : Ask(header, HDM_GETITEMCOUNT);
  const TargetRoom room(control);
  std::wstring result;
  bool any = false;
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      room.Put(
          {0, 0, static_cast<std::uint32_t>(column), 0, 0, room.Text(), TargetRoom::kTextLength});
      Ask(control, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), room.Record());
      const std::wstring cell = ThroughBlock(room.TakeText(), 256);
      any = any || !cell.empty();
      result += (column > 0 ? L"\t" : L"") + cell;
    }
    result += L"\r\n";
  }
  return any || rows == 0 ? result : std::wstring();
}

std::wstring ToolbarTexts(HWND control) {
  const TargetRoom room(control);
  std::wstring result;
  const int buttons = Ask(control, TB_BUTTONCOUNT);
  for (int i = 0; i < buttons; ++i) {
    room.Put({});
    Ask(control, TB_GETBUTTON, static_cast<WPARAM>(i), room.Record());
    const std::uint32_t command = room.TakeField(1);
    room.Put({});
    if (Ask(control, TB_GETBUTTONTEXTW, command, room.Record()) <= 0) continue;
    result += ThroughBlock(room.TakeText(0), 121) + L"\r\n";
  }
  return result;
}

std::wstring TabCaptions(HWND control) {
  const TargetRoom room(control);
  std::wstring result;
  const bool is64 = IsIn64BitProcess(control);
  const int tabs = Ask(control, TCM_GETITEMCOUNT);
  for (int i = 0; i < tabs; ++i) {
    if (is64) {
      room.Put({TCIF_TEXT, 0, 0, 0, room.Text(), 0, TargetRoom::kTextLength});
    } else {
      room.Put({TCIF_TEXT, 0, 0, room.Text(), TargetRoom::kTextLength});
    }
    Ask(control, TCM_GETITEMW, static_cast<WPARAM>(i), room.Record());
    result += ThroughBlock(room.TakeText(), 255) + L"\r\n";
  }
  return result;
}

struct Row {
  std::string_view className;
  const char* kind;
  std::wstring (*read)(HWND control);
};

constexpr Row kRows[] = {
    {"ListBox", "listbox", ListBoxItems},         {"ComboBox", "dropdown", ComboBoxItems},
    {"SysListView32", "listview", ListViewItems}, {"ToolbarWindow32", "toolbar", ToolbarTexts},
    {"SysTabControl32", "tabs", TabCaptions},
};

}  // namespace

std::string KindOfClass(const std::string& className) {
  for (const Row& row : kRows) {
    if (row.className == className) return row.kind;
  }
  return {};
}

bool IsIn64BitProcess(HWND window) {
  DWORD processId = 0;
  GetWindowThreadProcessId(window, &processId);
  const gui::OwnedHandle process(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processId));
  BOOL emulated = FALSE;
  return bed::Is64BitSystem() && IsWow64Process(process.get(), &emulated) && !emulated;
}

std::wstring ReadOtherwise(const std::string& kind, HWND control) {
  for (const Row& row : kRows) {
    if (kind == row.kind) return row.read(control);
  }
  throw std::out_of_range("no such kind of control");
}

}  // namespace cross
