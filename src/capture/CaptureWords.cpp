#include "capture/CaptureWords.h"

#include <array>
#include <cmath>
#include <cwchar>
#include <iterator>

#include "extract/StringUtilities.h"
#include "platform/Trim.h"

namespace capture {
namespace {

constexpr std::wstring_view kActionTests[] = {L" で DoDefAction Test", L" で Select 1 Test",
                                              L" で Select 2 Test"};

std::wstring RightAligned(std::int32_t number, std::size_t width) {
  const std::wstring digits = std::to_wstring(number);
  return std::wstring(width - std::min(width, digits.size()), L' ') + digits;
}

std::int32_t HandleValue(HWND hwnd) {
  return static_cast<std::int32_t>(reinterpret_cast<INT_PTR>(hwnd));
}

}  // namespace

std::wstring FormatMousePosition(POINT point) {
  return RightAligned(point.x, 4) + L"-" + RightAligned(point.y, 3);
}

std::wstring StopHint(std::wstring_view hotkey, std::int32_t actionTest,
                      std::wstring_view actionKeyName) {
  std::wstring hint = std::wstring(hotkey) + L"で停止";
  if (actionTest >= 1 && actionTest <= static_cast<std::int32_t>(std::size(kActionTests))) {
    hint += L"\r\n";
    hint += actionKeyName;
    hint += kActionTests[actionTest - 1];
  }
  return hint;
}

std::int32_t PointDistance(POINT p1, POINT p2) {
  return static_cast<std::int32_t>(
      std::lround(std::hypot(double(p2.x) - double(p1.x), double(p2.y) - double(p1.y))));
}

bool AsksForDebugMode(std::wstring_view commandLine) {
  commandLine = platform::Trimmed(commandLine);
  const std::wstring_view first = commandLine.substr(0, commandLine.find(L' '));
  constexpr std::wstring_view kDebug = L"debug";
  return first.size() == kDebug.size() && extract::ContainsIgnoringCase(first, kDebug);
}

bool ForbidsAutoStart(std::wstring_view commandLine) {
  return platform::Trimmed(commandLine) == L"no_start";
}

std::wstring DecimalHandle(HWND hwnd) { return std::to_wstring(HandleValue(hwnd)); }

std::wstring HexHandle(HWND hwnd) {
  std::array<wchar_t, 9> digits{};
  std::swprintf(digits.data(), digits.size(), L"%X", static_cast<unsigned>(HandleValue(hwnd)));
  return digits.data();
}

std::wstring ShownHandle(HWND hwnd, std::wstring_view winHandle) {
  return winHandle == L"hex" ? HexHandle(hwnd) : DecimalHandle(hwnd);
}

}  // namespace capture
