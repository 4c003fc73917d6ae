// The state of the one capture that can run, and the texts that it has read.
#pragma once

#include <windows.h>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace capture {

// Values of RunState beside the empty text, which means idle. Texts as states and flags, here and
// below, are odd, and stay: docs/ODDITIES.md.
constexpr std::wstring_view kGo = L"Go";
constexpr std::wstring_view kUnload = L"Unload";

// Values of ReportState.
constexpr std::int32_t kMoved = 0;     // the pointer moved, no report is due
constexpr std::int32_t kDue = 1;       // a report is due
constexpr std::int32_t kReported = 2;  // the report for this position is made

struct CaptureState {
  bool CaptureRunning = false;  // the loop should go on; any code may clear it
  std::wstring RunState;        // empty, "Go", or "Unload" when the program is to end
  bool DebugMode = false;
  POINT CapturePoint{};         // the point that is read, in screen pixels
  HWND TargetWindow = nullptr;  // the window meant at CapturePoint; null when no capture runs
  HWND GivenWindow = nullptr;   // the one that the system gives there, mostly the same
  std::wstring ActionKeyCode;   // virtual-key code, in decimal
  std::wstring VersionText;     // for the caption
  std::int32_t TwipsPerPixelX = 0;
  std::int32_t TwipsPerPixelY = 0;

  std::int32_t ReportState = kMoved;
  std::int32_t RefreshRequest = 0;     // 1 makes the next pass report again
  bool StopKeyKept = false;            // pressed during a report, handled after it
  std::uint32_t CaptureStartTick = 0;  // milliseconds, as GetTickCount counts
  std::uint32_t LastReportTick = 0;

  std::array<std::wstring, 3> TopTexts;     // 1 the accessible report, 2 the text at the point
  std::array<std::wstring, 4> BottomTexts;  // 0 "1" after a browser document, 1 the window's
                                            // information, 2 list text or markup, 3 page text
};

}  // namespace capture
