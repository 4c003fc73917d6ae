#include "ui/Controls.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "ui/Window.h"

namespace ui {
namespace {

// The messages that a control sends to its parent.
constexpr UINT kFromControls[] = {WM_COMMAND, WM_NOTIFY, WM_CTLCOLORSTATIC, WM_CTLCOLORBTN,
                                  WM_CTLCOLOREDIT};

bool IsFromControl(UINT message) {
  return std::ranges::find(kFromControls, message) != std::end(kFromControls);
}

LRESULT CALLBACK FrameProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  if (IsFromControl(message)) return SendMessageW(GetParent(hwnd), message, wParam, lParam);
  return DefWindowProcW(hwnd, message, wParam, lParam);
}

WNDCLASSEXW ButtonClass() {
  WNDCLASSEXW button{};
  button.cbSize = sizeof button;
  GetClassInfoExW(nullptr, L"BUTTON", &button);
  return button;
}

LRESULT CALLBACK GroupProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  static const WNDPROC kButtonProcedure = ButtonClass().lpfnWndProc;
  if (IsFromControl(message)) return SendMessageW(GetParent(hwnd), message, wParam, lParam);
  switch (message) {
    case WM_ERASEBKGND: {
      RECT whole{};
      GetClientRect(hwnd, &whole);
      FillRect(reinterpret_cast<HDC>(wParam), &whole, GetSysColorBrush(COLOR_BTNFACE));
      return 1;
    }
    case WM_NCHITTEST:  // a group box lets the pointer through and would never show its tool tip
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
      return DefWindowProcW(hwnd, message, wParam, lParam);
    default:
      return CallWindowProcW(kButtonProcedure, hwnd, message, wParam, lParam);
  }
}

void RegisterFrameClasses() {
  RegisterWindowClass({kFrameClass, FrameProcedure, IDC_ARROW, GetSysColorBrush(COLOR_BTNFACE)});

  WNDCLASSEXW group = ButtonClass();
  group.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
  group.lpfnWndProc = GroupProcedure;
  group.hInstance = GetModuleHandleW(nullptr);
  group.lpszClassName = kGroupClass;
  RegisterClassExW(&group);
}

bool IsFrame(const ControlRow& row) {
  const std::wstring_view name = row.className;
  return name == kFrameClass || name == kGroupClass;
}

void UseFont(HWND control, const platform::UniqueFont& font) {
  SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font.Get()), TRUE);
}

platform::UniqueFont MessageFont(UINT dpi) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi);
  return platform::UniqueFont(CreateFontIndirectW(&metrics.lfMessageFont));
}

}  // namespace

void ControlSet::Create(HWND window, std::span<const ControlRow> rows, UINT dpi) {
  RegisterFrameClasses();
  rows_ = rows;
  font_ = MessageFont(dpi);
  const TwipsScale scale = ScaleForDpi(dpi);
  for (const ControlRow& row : rows) {
    const HWND parent = row.parent == 0 ? window : windows_.at(row.parent);
    // A frame that grows must not erase controls that were moved into its new part.
    const DWORD style =
        row.style | WS_CHILD | WS_CLIPSIBLINGS | (IsFrame(row) ? WS_CLIPCHILDREN : 0);
    const DWORD exStyle = IsFrame(row) ? WS_EX_CONTROLPARENT : 0;
    const RECT place = scale.Pixels(row.place);
    const HWND control = CreateWindowExW(
        exStyle, row.className, row.caption, style, place.left, place.top, place.right - place.left,
        place.bottom - place.top, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(row.id)),
        GetModuleHandleW(nullptr), nullptr);
    UseFont(control, font_);
    windows_[row.id] = control;
  }
}

HWND ControlSet::operator[](int id) const {
  const auto found = windows_.find(id);
  return found == windows_.end() ? nullptr : found->second;
}

void ControlSet::ApplyDpi(UINT dpi) {
  platform::UniqueFont font = MessageFont(dpi);
  const TwipsScale scale = ScaleForDpi(dpi);
  for (const ControlRow& row : rows_) {
    UseFont((*this)[row.id], font);
    Place(row.id, row.place, scale);
  }
  font_ = std::move(font);
}

void ControlSet::Place(int id, const TwipsRect& place, const TwipsScale& scale) {
  const RECT pixels = scale.Pixels(place);
  // Redrawn, not copied: parts that were not painted yet would be copied too and stay unpainted.
  SetWindowPos((*this)[id], nullptr, pixels.left, pixels.top, pixels.right - pixels.left,
               pixels.bottom - pixels.top, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
}

std::wstring WindowText(HWND hwnd) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(hwnd)), L'\0');
  const int length = GetWindowTextW(hwnd, text.data(), static_cast<int>(text.size()) + 1);
  text.resize(static_cast<std::size_t>(length));
  return text;
}

int BoxValue(HWND box) { return SendMessageW(box, BM_GETCHECK, 0, 0) == BST_CHECKED ? 1 : 0; }

void SetBox(HWND box, int value) {
  SendMessageW(box, BM_SETCHECK, value != 0 ? BST_CHECKED : BST_UNCHECKED, 0);
}

}  // namespace ui
