#include "console/Target.h"

#include <string>
#include <string_view>

#include "extract/StringUtilities.h"
#include "extract/Win32API_Window.h"
#include "extract/WindowAtPoint.h"
#include "platform/WindowEnumeration.h"

namespace console {
namespace {

constexpr DWORD kLongestTitle = 4096;

// The shell puts the command line, and with it the wanted title, into the title of this console.
std::wstring TitleOfThisConsole() {
  std::wstring title(kLongestTitle, L'\0');
  title.resize(GetConsoleTitleW(title.data(), kLongestTitle));
  return extract::UpToNul(title);
}

HWND WindowWithTitle(std::wstring_view part) {
  const HWND console = GetConsoleWindow();
  const std::wstring ownTitle = TitleOfThisConsole();
  HWND found = nullptr;
  platform::ForEachWindow([&](HWND hwnd) {
    if (found != nullptr || hwnd == console || !IsWindowVisible(hwnd)) return;
    const std::wstring title = Win32API_Window::StoredWindowText(hwnd);
    if (title.find(part) != title.npos && title != ownTitle) found = hwnd;
  });
  return found;
}

bool SameIgnoringCase(std::wstring_view a, std::wstring_view b) {
  return a.size() == b.size() && extract::ContainsIgnoringCase(a, b);
}

HWND ControlIn(HWND window, const ControlWanted& wanted) {
  HWND found = nullptr;
  std::int32_t seen = 0;
  platform::ForEachWindow(window, [&](HWND hwnd) {
    if (!SameIgnoringCase(Win32API_Window::MyGetClassName(hwnd), wanted.className)) return;
    if (++seen == wanted.number) found = hwnd;
  });
  return found;
}

}  // namespace

Target TargetAt(POINT point) {
  const HWND given = WindowFromPoint(point);
  const HWND meant = extract::WindowMeant(given, point);
  return {meant, {point, meant == given ? nullptr : meant}, true};
}

Target TargetOf(HWND hwnd) {
  RECT place{};
  GetWindowRect(hwnd, &place);
  const POINT middle{place.left + (place.right - place.left) / 2,
                     place.top + (place.bottom - place.top) / 2};
  return {hwnd, {middle, hwnd}, false};
}

std::optional<Target> FindTarget(const Arguments& arguments) {
  HWND hwnd = nullptr;
  switch (arguments.place) {
    case Place::kPointer: {
      POINT pointer{};
      GetCursorPos(&pointer);
      return TargetAt(pointer);
    }
    case Place::kPoint:
      return TargetAt(arguments.point);
    case Place::kWindow:
      hwnd = arguments.window;
      break;
    case Place::kTitle:
      hwnd = WindowWithTitle(arguments.title);
      if (hwnd != nullptr && !arguments.control.className.empty()) {
        hwnd = ControlIn(hwnd, arguments.control);
      }
      break;
  }
  if (hwnd == nullptr || !IsWindow(hwnd)) return std::nullopt;
  return TargetOf(hwnd);
}

}  // namespace console
