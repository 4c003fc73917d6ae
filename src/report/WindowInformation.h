// Everything about a window itself: the facts, and the block of text made of them.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace report {

struct WindowFacts {
  HWND hwnd = nullptr;
  std::wstring className;
  std::wstring title;
  RECT place{};  // screen pixels
};

struct WindowInformation {
  WindowFacts window;
  WindowFacts owner;                   // hwnd null when the window has none
  std::vector<WindowFacts> ancestors;  // nearest first
  std::vector<WindowFacts> children;   // visible descendants, in the order of EnumChildWindows
};

// The facts about one window; of a window that is gone empty texts and a zero rectangle.
WindowFacts ReadWindowFacts(HWND hwnd);

// The same of a window that may hang: its caption is the one that the system stores.
WindowFacts ReadHungWindowFacts(HWND hwnd);

// The window with its owner, its ancestors and its visible descendants. Class and title are the
// given ones, the place is the current one.
WindowInformation ReadWindowInformation(const WindowFacts& window);

// The block of text, its lines ending with CR LF. winHandle is the setting "win handle": "hex"
// changes the handles of the children's lines only.
std::wstring WindowInformationText(const WindowInformation& information,
                                   std::wstring_view winHandle);

}  // namespace report
