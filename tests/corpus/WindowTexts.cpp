#include "WindowTexts.h"

#include <commctrl.h>

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <vector>

#include "OtherReading.h"
#include "TargetRoom.h"
#include "driver/Control.h"

namespace corpus {
namespace {

using cross::Ask;
using cross::TargetRoom;

constexpr std::uint32_t kCapacity = TargetRoom::kTextLength - 1;

// One field of a record, in a process of either kind.
struct Field {
  std::uint32_t value;
  bool pointer = false;
};

Field Pointer(std::uint32_t value) { return {value, true}; }
Field Pointer(int value) { return {static_cast<std::uint32_t>(value), true}; }
Field Number(int value) { return {static_cast<std::uint32_t>(value)}; }

class Asked {
 public:
  explicit Asked(HWND control)
      : control_(control), room_(control), is64_(cross::IsIn64BitProcess(control)) {}

  bool Is64() const { return is64_; }
  Field Text() const { return Pointer(room_.Text()); }

  // The text that the control puts behind the record.
  std::wstring Get(UINT message, WPARAM wParam, std::initializer_list<Field> record) const {
    std::vector<std::uint32_t> words;
    for (const Field& field : record) {
      const bool wide = is64_ && field.pointer;
      if (wide && words.size() % 2 != 0) words.push_back(0);
      words.push_back(field.value);
      if (wide) words.push_back(0);
    }
    room_.Put(words);
    Ask(control_, message, wParam, room_.Record());
    return room_.TakeText();
  }

  // The text that the control puts at the start.
  std::wstring GetText(UINT message, WPARAM wParam) const {
    room_.Put({});
    Ask(control_, message, wParam, room_.Record());
    return room_.TakeText(0);
  }

  // 32 bits of the record that the control has filled.
  std::uint32_t FieldAt(std::size_t index) const { return room_.TakeField(index); }

 private:
  HWND control_;
  TargetRoom room_;
  bool is64_;
};

class Lines {
 public:
  void Cell(const std::wstring& text) {
    if (inRow_) text_ += L'\t';
    inRow_ = true;
    text_ += text;
    longest_ = std::max(longest_, text.size());
  }
  void EndRow() {
    text_ += L"\r\n";
    inRow_ = false;
  }
  void Row(const std::wstring& text, int level = 0) {
    for (int i = 0; i < level; ++i) Cell({});
    Cell(text);
    EndRow();
  }
  void PutInto(WindowTexts& texts) {
    if (longest_ == 0) return;
    texts.items = std::move(text_);
    texts.longestItem = longest_;
  }

 private:
  std::wstring text_;
  std::size_t longest_ = 0;
  bool inRow_ = false;
};

void ReadListBox(HWND control, Lines& lines) {
  const std::wstring text =
      cross::ReadOtherwise(cross::KindOfClass(gui::Control(control, "").ClassName()), control);
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = text.find(L"\r\n", at);
    lines.Row(text.substr(at, end - at));
    at = end + 2;
  }
}

void ReadListView(HWND control, Lines& lines) {
  const Asked asked(control);
  const int rows = Ask(control, LVM_GETITEMCOUNT);
  HWND header = FindWindowExW(control, nullptr, WC_HEADERW, nullptr);
  const int columns = header == nullptr ? 1 : std::max(Ask(header, HDM_GETITEMCOUNT), 1);
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      lines.Cell(asked.Get(LVM_GETITEMTEXTW, static_cast<WPARAM>(row),
                           {Number(LVIF_TEXT),
                            Number(row),
                            Number(column),
                            Number(0),
                            Number(0),
                            asked.Text(),
                            {kCapacity}}));
    }
    lines.EndRow();
  }
}

void ReadTreeLevel(HWND control, const Asked& asked, int first, int level, Lines& lines) {
  for (int item = first; item != 0; item = Ask(control, TVM_GETNEXTITEM, TVGN_NEXT, item)) {
    lines.Row(asked.Get(TVM_GETITEMW, 0,
                        {Number(TVIF_TEXT | TVIF_HANDLE),
                         Pointer(item),
                         Number(0),
                         Number(0),
                         asked.Text(),
                         {kCapacity}}),
              level);
    const int child = Ask(control, TVM_GETNEXTITEM, TVGN_CHILD, item);
    ReadTreeLevel(control, asked, child, level + 1, lines);
  }
}

void ReadTree(HWND control, Lines& lines) {
  ReadTreeLevel(control, Asked(control), Ask(control, TVM_GETNEXTITEM, TVGN_ROOT), 0, lines);
}

// By their places, not by their commands. A text is the button's own or one of the list that the
// buttons share.
std::wstring ButtonText(const Asked& asked, int index) {
  constexpr int kSize32 = 32;  // TBBUTTONINFOW
  constexpr int kSize64 = 48;
  const WPARAM button = static_cast<WPARAM>(index);
  const std::wstring own = asked.Get(TB_GETBUTTONINFOW, button,
                                     {Number(asked.Is64() ? kSize64 : kSize32),
                                      {TBIF_TEXT | static_cast<std::uint32_t>(TBIF_BYINDEX)},
                                      Number(0),
                                      Number(0),
                                      Number(0),
                                      Pointer(0),
                                      asked.Text(),
                                      {kCapacity}});
  if (!own.empty()) return own;
  asked.GetText(TB_GETBUTTON, button);
  const bool separator = (asked.FieldAt(2) >> 8 & BTNS_SEP) != 0;
  const std::uint32_t shared = asked.FieldAt(asked.Is64() ? 6 : 4);
  if (separator || shared > 0xFFFF) return {};
  return asked.GetText(TB_GETSTRINGW, MAKEWPARAM(kCapacity, shared));
}

void ReadToolbar(HWND control, Lines& lines) {
  const Asked asked(control);
  const int buttons = Ask(control, TB_BUTTONCOUNT);
  for (int i = 0; i < buttons; ++i) {
    const std::wstring text = ButtonText(asked, i);
    if (!text.empty()) lines.Row(text);
  }
}

void ReadTabs(HWND control, Lines& lines) {
  const Asked asked(control);
  const int tabs = Ask(control, TCM_GETITEMCOUNT);
  for (int i = 0; i < tabs; ++i) {
    lines.Row(asked.Get(TCM_GETITEMW, static_cast<WPARAM>(i),
                        {Number(TCIF_TEXT), Number(0), Number(0), asked.Text(), {kCapacity}}));
  }
}

void ReadHeader(HWND control, Lines& lines) {
  const Asked asked(control);
  const int items = Ask(control, HDM_GETITEMCOUNT);
  for (int i = 0; i < items; ++i) {
    lines.Row(asked.Get(HDM_GETITEMW, static_cast<WPARAM>(i),
                        {Number(HDI_TEXT), Number(0), asked.Text(), Pointer(0), {kCapacity}}));
  }
}

void ReadStatusBar(HWND control, Lines& lines) {
  constexpr WPARAM kSimplePart = 0xFF;
  const Asked asked(control);
  const bool simple = Ask(control, SB_ISSIMPLE) != 0;
  const int parts = simple ? 1 : Ask(control, SB_GETPARTS);
  for (int i = 0; i < parts; ++i) {
    std::wstring text = asked.GetText(SB_GETTEXTW, simple ? kSimplePart : static_cast<WPARAM>(i));
    // TABs say how the text is aligned.
    text.erase(0, std::min(text.find_first_not_of(L'\t'), text.size()));
    lines.Row(text);
  }
}

void ReadExtendedComboBox(HWND control, Lines& lines) {
  const Asked asked(control);
  const int items = Ask(control, CB_GETCOUNT);
  for (int i = 0; i < items; ++i) {
    lines.Row(
        asked.Get(CBEM_GETITEMW, 0, {Number(CBEIF_TEXT), Pointer(i), asked.Text(), {kCapacity}}));
  }
}

struct Row {
  std::string_view className;
  void (*read)(HWND control, Lines& lines);
};

constexpr Row kRows[] = {
    {"ListBox", ReadListBox},
    {"ComboBox", ReadListBox},
    {"SysListView32", ReadListView},
    {"SysTreeView32", ReadTree},
    {"ToolbarWindow32", ReadToolbar},
    {"SysTabControl32", ReadTabs},
    {"SysHeader32", ReadHeader},
    {"msctls_statusbar32", ReadStatusBar},
    {"ComboBoxEx32", ReadExtendedComboBox},
};

// A list box without texts, drawn by its owner.
bool IsPainted(HWND control, std::string_view className) {
  constexpr LONG_PTR kOwnerDrawn = LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE;
  const LONG_PTR style = GetWindowLongPtrW(control, GWL_STYLE);
  return className == "ListBox" && (style & kOwnerDrawn) != 0 && (style & LBS_HASSTRINGS) == 0 &&
         Ask(control, LB_GETCOUNT) > 0;
}

std::wstring CaptionOf(HWND window) {
  const auto length = static_cast<std::size_t>(std::max(Ask(window, WM_GETTEXTLENGTH), 0));
  std::vector<wchar_t> text(length + 2);
  const int copied = Ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  return copied == 0 ? L"" : text.data();
}

// The list in an extended combo box, whose items only the extended one knows.
HWND HolderOfItems(HWND window) {
  HWND parent = GetParent(window);
  return gui::Control(parent, "").ClassName() == "ComboBoxEx32" ? parent : window;
}

}  // namespace

WindowTexts TextsOf(HWND window) {
  WindowTexts texts;
  texts.caption = CaptionOf(window);
  const HWND holder = HolderOfItems(window);
  const std::string className = gui::Control(holder, "").ClassName();
  for (const Row& row : kRows) {
    if (row.className != className) continue;
    Lines lines;
    row.read(holder, lines);
    lines.PutInto(texts);
    texts.lists = true;
    texts.painted = texts.items.empty() && IsPainted(holder, className);
  }
  return texts;
}

}  // namespace corpus
