#include "driver/Control.h"

#include "driver/Pointer.h"
#include "driver/Text.h"

namespace gui {
namespace {

constexpr UINT kAnswerTime = 2000;

std::string Describe(HWND window) {
  wchar_t name[128] = {};
  GetClassNameW(window, name, 128);
  return ToUtf8(name) + " number " + std::to_string(GetDlgCtrlID(window));
}

BOOL CALLBACK AddToList(HWND window, LPARAM list) {
  reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
  return TRUE;
}

}  // namespace

LRESULT Control::Ask(UINT message, WPARAM wParam, LPARAM lParam) const {
  DWORD_PTR answer = 0;
  SendMessageTimeoutW(window_, message, wParam, lParam, SMTO_ABORTIFHUNG, kAnswerTime, &answer);
  return static_cast<LRESULT>(answer);
}

std::string Control::HandleText() const {
  return std::to_string(reinterpret_cast<INT_PTR>(window_));
}

std::size_t Control::TextLength() const {
  return static_cast<std::size_t>(Ask(WM_GETTEXTLENGTH, 0, 0));
}

std::string Control::Text() const {
  std::wstring text(TextLength() + 1, L'\0');
  const LRESULT copied = Ask(WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(copied));
  return ToUtf8(text);
}

std::string Control::ClassName() const {
  wchar_t name[128] = {};
  GetClassNameW(window_, name, 128);
  return ToUtf8(name);
}

RECT Control::Rectangle() const {
  RECT rectangle = {};
  GetWindowRect(window_, &rectangle);
  return rectangle;
}

SIZE Control::Size() const {
  const RECT at = Rectangle();
  return {at.right - at.left, at.bottom - at.top};
}

POINT Control::Center() const {
  const RECT at = Rectangle();
  return {(at.left + at.right) / 2, (at.top + at.bottom) / 2};
}

bool Control::IsVisible() const { return IsWindowVisible(window_) != FALSE; }

bool Control::IsEnabled() const { return IsWindowEnabled(window_) != FALSE; }

bool Control::IsChecked() const { return Ask(BM_GETCHECK, 0, 0) == BST_CHECKED; }

bool Control::HasFocus() const {
  GUITHREADINFO info = {};
  info.cbSize = sizeof info;
  return GetGUIThreadInfo(GetWindowThreadProcessId(window_, nullptr), &info) &&
         info.hwndFocus == window_;
}

void Control::SetText(std::string_view utf8) const {
  Ask(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(ToWide(utf8).c_str()));
}

void Control::WaitUntilReachable() const {
  Require(WaitFor(name_ + " is under the pointer", [&](std::string& seen) {
    const HWND under = WindowFromPoint(Center());
    seen = Describe(under);
    return under == window_;
  }));
}

void Control::Click() const {
  WaitUntilReachable();
  pointer::Click(Center());
}

void Control::DoubleClick() const {
  WaitUntilReachable();
  pointer::DoubleClick(Center());
}

void Control::PressButton() const { PostMessageW(window_, BM_CLICK, 0, 0); }

testing::AssertionResult Control::TextBecomes(std::string_view expected,
                                              Milliseconds deadline) const {
  return gui::TextBecomes(
      name_, expected, [&] { return Text(); }, deadline);
}

testing::AssertionResult Control::TextStays(std::string_view expected,
                                            Milliseconds duration) const {
  return gui::TextStays(
      name_, expected, [&] { return Text(); }, duration);
}

std::vector<HWND> Descendants(HWND parent) {
  std::vector<HWND> found;
  EnumChildWindows(parent, AddToList, reinterpret_cast<LPARAM>(&found));
  return found;
}

bool Overlap(const RECT& first, const RECT& second) {
  return first.left < second.right && second.left < first.right && first.top < second.bottom &&
         second.top < first.bottom;
}

}  // namespace gui
