// panes.exe [SECONDS]: waits until the running program has reported a window, then prints its boxes
// and panes in UTF-8. Returns 0 for a report, 1 when there was none within SECONDS (default 20);
// it then prints what is shown.

#include <windows.h>

#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <thread>

#include "ui/ControlIds.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr wchar_t kMainWindowClass[] = L"frmQuorvinFromPoint";
constexpr std::wstring_view kReporting = L"取得中・・・・";
constexpr UINT kAnswerMs = 2000;

struct NamedControl {
  const char* name;
  int id;
};

constexpr NamedControl kBoxes[] = {
    {"txthWnd", ui::txthWnd}, {"txtWin0", ui::txtWin0},     {"txtWin1", ui::txtWin1},
    {"txtWin2", ui::txtWin2}, {"txtWin3", ui::txtWin3},     {"txtCount", ui::txtCount},
    {"lblMsg", ui::lblMsg},   {"txtStatus", ui::txtStatus}, {"lblMousePos", ui::lblMousePos},
};

// Of each pair of panes one is shown: the one that wraps or the one that scrolls sideways.
constexpr NamedControl kTopPanes[] = {{"top pane", ui::txtWinTextT0},
                                      {"top pane", ui::txtWinTextT1}};
constexpr NamedControl kBottomPanes[] = {{"bottom pane", ui::txtWinTextB0},
                                         {"bottom pane", ui::txtWinTextB1}};

struct Search {
  int id;
  HWND found;
};

BOOL CALLBACK TakeControlById(HWND window, LPARAM parameter) {
  auto* search = reinterpret_cast<Search*>(parameter);
  if (GetDlgCtrlID(window) != search->id) return TRUE;
  search->found = window;
  return FALSE;
}

// The control may stand inside a frame, so all descendants are looked at.
HWND FindControl(HWND mainWindow, int id) {
  Search search{id, nullptr};
  EnumChildWindows(mainWindow, TakeControlById, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

// Empty when the control is missing or does not answer in time.
std::wstring ReadText(HWND control) {
  DWORD_PTR length = 0;
  if (SendMessageTimeoutW(control, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, kAnswerMs, &length) ==
      0) {
    return {};
  }
  std::wstring text(length + 1, L'\0');
  DWORD_PTR copied = 0;
  if (SendMessageTimeoutW(control, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                          SMTO_ABORTIFHUNG, kAnswerMs, &copied) == 0) {
    return {};
  }
  text.resize(copied);
  return text;
}

std::wstring ReadShown(HWND mainWindow, const NamedControl (&pair)[2]) {
  for (const NamedControl& member : pair) {
    const HWND control = FindControl(mainWindow, member.id);
    if (IsWindowVisible(control)) return ReadText(control);
  }
  return {};
}

bool HasReported(HWND mainWindow) {
  return !ReadText(FindControl(mainWindow, ui::txthWnd)).empty() &&
         ReadText(FindControl(mainWindow, ui::lblMsg)) != kReporting &&
         !ReadShown(mainWindow, kTopPanes).empty();
}

std::string ToUtf8(std::wstring_view text) {
  const int length = static_cast<int>(text.size());
  const int bytes =
      WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(bytes), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), length, utf8.data(), bytes, nullptr, nullptr);
  return utf8;
}

// Each line of the text on a separate line, so that a pane cannot be mistaken for a box.
void Print(const char* name, const std::wstring& text) {
  std::string lines = ToUtf8(text);
  std::erase(lines, '\r');
  if (lines.find('\n') == std::string::npos) {
    std::printf("%s: %s\n", name, lines.c_str());
    return;
  }
  std::printf("%s:\n", name);
  for (std::size_t start = 0; start <= lines.size();) {
    const std::size_t end = std::min(lines.find('\n', start), lines.size());
    std::printf("    %s\n", lines.substr(start, end - start).c_str());
    start = end + 1;
  }
}

}  // namespace

int main(int argc, char** argv) {
  _setmode(_fileno(stdout), _O_BINARY);

  const auto deadline = Clock::now() + std::chrono::seconds(argc > 1 ? std::atoi(argv[1]) : 20);
  HWND mainWindow = nullptr;
  bool reported = false;
  while (!reported && Clock::now() < deadline) {
    mainWindow = FindWindowW(kMainWindowClass, nullptr);
    reported = mainWindow != nullptr && HasReported(mainWindow);
    if (!reported) std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }

  if (mainWindow == nullptr) {
    std::fprintf(stderr, "The main window does not exist.\n");
    return 1;
  }
  Print("caption", ReadText(mainWindow));
  for (const NamedControl& box : kBoxes) {
    Print(box.name, ReadText(FindControl(mainWindow, box.id)));
  }
  Print("top pane", ReadShown(mainWindow, kTopPanes));
  Print("bottom pane", ReadShown(mainWindow, kBottomPanes));
  if (!reported) std::fprintf(stderr, "The program has reported no window.\n");
  return reported ? 0 : 1;
}
