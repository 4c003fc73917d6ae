#include "LayoutCheck.h"

#include <algorithm>

#include "driver/Owners.h"
#include "driver/Text.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

struct Part {
  Control control;
  HWND parent;
  int id;
};

std::vector<Part> VisibleParts(const Control& root) {
  std::vector<Part> parts;
  for (HWND window : Descendants(root.Handle())) {
    if (!IsWindowVisible(window)) continue;
    const int id = GetDlgCtrlID(window);
    parts.push_back({Control(window, std::to_string(id)), GetAncestor(window, GA_PARENT), id});
  }
  return parts;
}

std::string Describe(const Part& part) {
  const RECT at = part.control.Rectangle();
  return "control " + std::to_string(part.id) + " (" + std::to_string(at.left) + "," +
         std::to_string(at.top) + ".." + std::to_string(at.right) + "," +
         std::to_string(at.bottom) + ")";
}

bool IsBottomPane(int id) { return id == ui::txtWinTextB0 || id == ui::txtWinTextB1; }

bool MayShareARow(const Part& first, const Part& second) {
  return IsBottomPane(first.id) && second.id == ui::txtStatus &&
         first.control.Rectangle().bottom <= second.control.Rectangle().top + 1;
}

// Measures texts in the message font.
class Ruler {
 public:
  explicit Ruler(UINT dpi) {
    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi);
    font_.reset(CreateFontIndirectW(&metrics.lfMessageFont));
    dc_.reset(CreateCompatibleDC(nullptr));
    SelectObject(dc_.get(), font_.get());
  }

  // Of the text in the lines that it has.
  SIZE Measure(const std::string& utf8) const { return Draw(utf8, 0, 0); }

  // Of the text broken into lines of that width.
  SIZE MeasureBroken(const std::string& utf8, LONG width) const {
    return Draw(utf8, width, DT_WORDBREAK);
  }

 private:
  SIZE Draw(const std::string& utf8, LONG width, UINT how) const {
    RECT area = {0, 0, width, 0};
    DrawTextW(dc_.get(), ToWide(utf8).c_str(), -1, &area, DT_CALCRECT | DT_NOPREFIX | how);
    return {area.right, area.bottom};
  }

  OwnedFont font_;
  OwnedMemoryDc dc_;  // destroyed first: a selected font cannot be deleted
};

// The longest text that a control usually shows; empty when its own caption is measured.
std::string LongestUsualText(int id) {
  switch (id) {
    case ui::lblMousePos:
      return "1234-1080";
    case ui::txthWnd:
      return "4294901760";
    case ui::lblMsg:
      return "クリックでクリップボード転送";
    case ui::lblStatus:
      return "Shift+PAUSE/BREAKで停止\r\nCtrl で DoDefAction Test";
    case ui::lblAutoStop:
      return "3";
    case ui::lblTextKind:
    case ui::lblListKind:
      return "LVM_GETITEMW";
    default:
      return "";
  }
}

// A link's text without the marks around its clickable part.
std::string WithoutMarks(const std::string& text) {
  std::string shown;
  bool inMark = false;
  for (const char c : text) {
    if (c == '<') inMark = true;
    if (!inMark) shown += c;
    if (c == '>') inMark = false;
  }
  return shown;
}

std::string LongestItem(const Control& list, const Ruler& ruler) {
  std::string longest;
  const LRESULT count = SendMessageW(list.Handle(), CB_GETCOUNT, 0, 0);
  for (WPARAM i = 0; i < static_cast<WPARAM>(count); ++i) {
    wchar_t text[128] = {};
    SendMessageW(list.Handle(), CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text));
    const std::string item = ToUtf8(text);
    if (ruler.Measure(item).cx > ruler.Measure(longest).cx) longest = item;
  }
  return longest;
}

// The space that a control needs in addition to its text.
SIZE Surroundings(const Control& control, UINT dpi) {
  const LONG unit = static_cast<LONG>(dpi);
  const LONG_PTR kind = control.Style() & BS_TYPEMASK;
  const bool isMark = kind == BS_AUTOCHECKBOX || kind == BS_AUTORADIOBUTTON;
  if (control.ClassName() == "Button" && isMark) return {(13 + 3) * unit / 96, 0};
  if (control.ClassName() == "ComboBox") return {GetSystemMetrics(SM_CXVSCROLL) + 8, 4};
  if (control.ClassName() == "VelmoraGroup") return {20, 0};
  if (control.ClassName() == "Button") return {6, 4};
  if (control.ClassName() == "Edit") return {6, 2};
  return {0, 0};
}

// Whether the control shows a long text in several lines.
bool BreaksLines(const Control& control) {
  if (control.ClassName() == "Button") return (control.Style() & BS_MULTILINE) != 0;
  return control.ClassName() == "Static" && (control.Style() & SS_TYPEMASK) == SS_LEFT &&
         (control.Style() & SS_CENTERIMAGE) == 0;
}

}  // namespace

std::vector<std::string> Overlaps(const Control& window) {
  const std::vector<Part> parts = VisibleParts(window);
  std::vector<std::string> faults;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    for (std::size_t j = i + 1; j < parts.size(); ++j) {
      if (parts[i].parent != parts[j].parent) continue;
      if (!Overlap(parts[i].control.Rectangle(), parts[j].control.Rectangle())) continue;
      if (MayShareARow(parts[i], parts[j]) || MayShareARow(parts[j], parts[i])) continue;
      faults.push_back(Describe(parts[i]) + " covers " + Describe(parts[j]));
    }
  }
  return faults;
}

std::vector<std::string> Protruding(const Control& window) {
  std::vector<std::string> faults;
  for (const Part& part : VisibleParts(window)) {
    const RECT at = part.control.Rectangle();
    const RECT inner = InnerArea(Control(part.parent, "parent"));
    if (at.left < inner.left || at.top < inner.top || at.right > inner.right ||
        at.bottom > inner.bottom) {
      faults.push_back(Describe(part) + " reaches beyond (" + std::to_string(inner.left) + "," +
                       std::to_string(inner.top) + ".." + std::to_string(inner.right) + "," +
                       std::to_string(inner.bottom) + ")");
    }
  }
  return faults;
}

std::vector<std::string> ClippedTexts(const Control& window, UINT dpi) {
  const Ruler ruler(dpi);
  std::vector<std::string> faults;
  for (HWND handle : Descendants(window.Handle())) {
    const int id = GetDlgCtrlID(handle);
    const Control control(handle, std::to_string(id));
    std::string text = LongestUsualText(id);
    if (control.ClassName() == "ComboBox") {
      text = LongestItem(control, ruler);
    } else if (text.empty() && control.ClassName() != "Edit") {
      text = WithoutMarks(control.Text());
    }
    if (text.empty()) continue;
    const SIZE around = Surroundings(control, dpi);
    const SIZE room = control.Size();
    const SIZE needed =
        BreaksLines(control) ? ruler.MeasureBroken(text, room.cx - around.cx) : ruler.Measure(text);
    if (needed.cx + around.cx > room.cx || needed.cy + around.cy > room.cy) {
      faults.push_back("control " + std::to_string(id) + " (" + std::to_string(room.cx) + "x" +
                       std::to_string(room.cy) + ") needs " +
                       std::to_string(needed.cx + around.cx) + "x" +
                       std::to_string(needed.cy + around.cy) + " for \"" + text + "\"");
    }
  }
  return faults;
}

RECT InnerArea(const Control& window) {
  RECT area = {};
  GetClientRect(window.Handle(), &area);
  MapWindowPoints(window.Handle(), nullptr, reinterpret_cast<POINT*>(&area), 2);
  return area;
}

}  // namespace gui
