#include "capture/CaptureWords.h"

#include <cmath>
#include <iterator>

#include "extract/StringUtilities.h"
#include "platform/LineEnd.h"
#include "platform/NumberText.h"
#include "platform/Trim.h"

namespace capture {
namespace {

constexpr std::wstring_view kActionTests[] = {L" で DoDefAction Test", L" で Select 1 Test",
                                              L" で Select 2 Test"};

}  // namespace

std::wstring FormatMousePosition(POINT point) {
  return platform::RightAligned(std::to_wstring(point.x), 4) + L"-" +
         platform::RightAligned(std::to_wstring(point.y), 3);
}

std::wstring StopHint(std::wstring_view hotkey, std::int32_t actionTest,
                      std::wstring_view actionKeyName) {
  std::wstring hint = std::wstring(hotkey) + L"で停止";
  if (actionTest >= 1 && actionTest <= static_cast<std::int32_t>(std::size(kActionTests))) {
    hint += platform::kCrLf;
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

bool StartsByItself(const settings::Settings& settings, std::wstring_view commandLine) {
  return settings.autoStart == 1 && platform::Trimmed(commandLine) != L"no_start";
}

}  // namespace capture
