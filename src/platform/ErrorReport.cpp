#include "platform/ErrorReport.h"

#include <windows.h>

#include <utility>

namespace platform {
namespace {

void SystemMessageBox(const std::wstring& text, const std::wstring& title) {
  MessageBoxW(GetActiveWindow(), text.c_str(), title.c_str(), MB_OK);
}

MessageBoxFunction& Current() {
  static MessageBoxFunction function = SystemMessageBox;
  return function;
}

bool boxIsOpen = false;

// A box pumps messages, so timers run under it and may fail again.
class OpenBox {
 public:
  OpenBox() { boxIsOpen = true; }
  ~OpenBox() { boxIsOpen = false; }
  OpenBox(const OpenBox&) = delete;
  OpenBox& operator=(const OpenBox&) = delete;
};

}  // namespace

MessageBoxFunction SetMessageBox(MessageBoxFunction function) {
  return std::exchange(Current(), std::move(function));
}

bool ShowMessage(const std::wstring& text, const std::wstring& title) {
  if (boxIsOpen) return false;
  const OpenBox open;
  Current()(text, title);
  return true;
}

void ReportError(std::wstring_view procedure, const NumberedError& error) {
  ShowMessage(std::to_wstring(error.Number()) + L" " + error.Description(),
              std::wstring(procedure));
}

}  // namespace platform
