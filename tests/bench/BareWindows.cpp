#include "BareWindows.h"

namespace bench {
namespace {

BOOL CALLBACK AskIfVisible(HWND hwnd, LPARAM) {
  if (IsWindowVisible(hwnd)) AskWindow(hwnd);
  return TRUE;
}

BOOL CALLBACK AskClass(HWND hwnd, LPARAM) {
  wchar_t className[128];
  GetClassNameW(hwnd, className, 128);
  return TRUE;
}

}  // namespace

void AskWindow(HWND hwnd) {
  wchar_t className[128];
  static wchar_t title[9192];
  RECT place{};
  GetClassNameW(hwnd, className, 128);
  GetWindowTextW(hwnd, title, 9192);
  GetWindowRect(hwnd, &place);
}

void AskInformation(HWND hwnd) {
  AskWindow(hwnd);
  if (const HWND owner = GetWindow(hwnd, GW_OWNER)) AskWindow(owner);
  for (HWND parent = GetParent(hwnd); parent != nullptr; parent = GetParent(parent)) {
    AskWindow(parent);
  }
  EnumChildWindows(hwnd, AskIfVisible, 0);
}

void AskForStatusBars(HWND hwnd) {
  HWND top = hwnd;
  for (HWND parent = GetParent(top); parent != nullptr; parent = GetParent(top)) top = parent;
  EnumChildWindows(top, AskClass, 0);
  // Once for the bar, once for the tabs.
  EnumChildWindows(GetForegroundWindow(), AskClass, 0);
  EnumChildWindows(GetForegroundWindow(), AskClass, 0);
}

}  // namespace bench
