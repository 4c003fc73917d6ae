#include "DialogWindow.h"

#include <stdexcept>

#include "driver/Keys.h"
#include "driver/Pointer.h"
#include "driver/Text.h"
#include "driver/Windows.h"
#include "ui/ControlIds.h"

namespace gui {

DialogWindow::DialogWindow(const Program& program, std::string_view className)
    : className_(className), window_(WaitForWindow(program.Process(), className)) {}

Control DialogWindow::operator[](int id) const {
  for (HWND window : Descendants(window_)) {
    if (GetDlgCtrlID(window) == id) return {window, "control " + std::to_string(id)};
  }
  throw std::runtime_error(className_ + " has no control " + std::to_string(id));
}

testing::AssertionResult DialogWindow::Closes() const {
  return WaitFor(className_ + " is closed", [&](std::string&) { return !IsOpen(); });
}

void DialogWindow::Close() const { PostMessageW(window_, WM_CLOSE, 0, 0); }

DialogWindow OpenSettings(const Program& program) {
  program[ui::cmdSetting].PressButton();
  return {program, "frmSetting"};
}

DialogWindow OpenHotKeys(const Program& program, const DialogWindow& settings) {
  settings[ui::cmdHotKey].PressButton();
  return {program, "frmOption"};
}

int FocusOf(const DialogWindow& dialog) {
  GUITHREADINFO info = {};
  info.cbSize = sizeof info;
  GetGUIThreadInfo(GetWindowThreadProcessId(dialog.Window().Handle(), nullptr), &info);
  if (info.hwndFocus == nullptr) return 0;
  // The box in a drop-down list counts as the list.
  const HWND parent = GetAncestor(info.hwndFocus, GA_PARENT);
  const bool inList = Control(parent, "").ClassName() == "ComboBox";
  return GetDlgCtrlID(inList ? parent : info.hwndFocus);
}

testing::AssertionResult FocusMovesTo(const DialogWindow& dialog, int id) {
  return WaitFor("the focus moves to " + std::to_string(id), [&](std::string& seen) {
    seen = std::to_string(FocusOf(dialog));
    return FocusOf(dialog) == id;
  });
}

int ItemCount(const Control& list) {
  return static_cast<int>(SendMessageW(list.Handle(), CB_GETCOUNT, 0, 0));
}

std::string Item(const Control& list, int index) {
  // The wide message returns wide text from another process too.
  wchar_t text[128] = {};
  SendMessageW(list.Handle(), CB_GETLBTEXT, static_cast<WPARAM>(index),
               reinterpret_cast<LPARAM>(text));
  return ToUtf8(text);
}

int ChosenIndex(const Control& list) {
  return static_cast<int>(SendMessageW(list.Handle(), CB_GETCURSEL, 0, 0));
}

Control BoxOf(const Control& list) {
  const HWND box = FindInside(list.Handle(), "Edit");
  if (box == nullptr) return list;
  return {box, "the box of the list"};
}

void Choose(const Control& list, int index) {
  DWORD process = 0;
  GetWindowThreadProcessId(list.Handle(), &process);
  const auto opened = [process]() -> HWND {
    for (HWND window : VisibleWindows(process)) {
      if (Control(window, "").ClassName() == "ComboLBox") return window;
    }
    return nullptr;
  };
  const RECT at = list.Rectangle();
  pointer::Click({at.right - 8, (at.top + at.bottom) / 2});
  Require(WaitFor("the list is open", [&](std::string&) { return opened() != nullptr; }));
  RECT item = {};
  SendMessageW(opened(), LB_GETITEMRECT, static_cast<WPARAM>(index),
               reinterpret_cast<LPARAM>(&item));
  POINT point = {(item.left + item.right) / 2, (item.top + item.bottom) / 2};
  ClientToScreen(opened(), &point);
  pointer::Click(point);
  Require(WaitFor("the list is closed", [&](std::string&) { return opened() == nullptr; }));
}

void Retype(const Control& box, std::initializer_list<WORD> virtualKeys) {
  box.Click();
  Require(WaitFor("the box has the focus", [&](std::string&) { return box.HasFocus(); }));
  keys::Stroke({VK_END}, Milliseconds(20));
  while (!box.Text().empty()) {
    const std::string before = box.Text();
    keys::Stroke({VK_BACK}, Milliseconds(20));
    Require(WaitFor("a character goes", [&](std::string&) { return box.Text() != before; }));
  }
  for (const WORD key : virtualKeys) keys::Stroke({key}, Milliseconds(20));
}

}  // namespace gui
