#include "platform/ErrorReport.h"

#include <windows.h>

#include <utility>

namespace platform {
namespace {

// Topmost, because the main window may be topmost: a box behind it would block the capture unseen.
// MB_SYSTEMMODAL means no more than that today.
void SystemMessageBox(const std::wstring& text, const std::wstring& title) {
  MessageBoxW(GetActiveWindow(), text.c_str(), title.c_str(), MB_OK | MB_SYSTEMMODAL);
}

MessageBoxFunction& Current() {
  static MessageBoxFunction function = SystemMessageBox;
  return function;
}

bool boxIsOpen = false;

// A box pumps messages, so timers run while it is open and may fail again.
class OpenBox {
 public:
  OpenBox() { boxIsOpen = true; }
  ~OpenBox() { boxIsOpen = false; }
  OpenBox(const OpenBox&) = delete;
  OpenBox& operator=(const OpenBox&) = delete;
};

// The exception that is being handled.
NumberedError CurrentError() {
  try {
    throw;
  } catch (const NumberedError& error) {
    return error;
  } catch (...) {
    // The standard library throws when memory runs out or a length is too large.
    return {ERROR_NOT_ENOUGH_MEMORY, SystemDescription(ERROR_NOT_ENOUGH_MEMORY)};
  }
}

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

std::wstring SystemDescription(long number) {
  wchar_t* text = nullptr;
  const DWORD length = FormatMessageW(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
      nullptr, static_cast<DWORD>(number), 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
  std::wstring description(text == nullptr ? L"" : text, length);
  LocalFree(text);
  while (description.ends_with(L'\n') || description.ends_with(L'\r')) description.pop_back();
  return description;
}

NumberedError InvalidArgument() {
  return {ERROR_INVALID_PARAMETER, SystemDescription(ERROR_INVALID_PARAMETER)};
}

std::wstring ErrorText(const NumberedError& error) {
  return std::to_wstring(error.Number()) + L" " + error.Description();
}

std::wstring CurrentErrorText() { return ErrorText(CurrentError()); }

void ReportCurrentError(std::wstring_view procedure) { ReportError(procedure, CurrentError()); }

void ReportCurrentErrorAtLine(std::wstring_view procedure) {
  const NumberedError error = CurrentError();
  ReportError(procedure, {error.Number(), error.Description() + L"\r\nError Line = 0"});
}

void ReportError(std::wstring_view procedure, const NumberedError& error) {
  ShowMessage(ErrorText(error), std::wstring(procedure));
}

}  // namespace platform
