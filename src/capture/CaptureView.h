// The screen, as the capture sees it: what it shows its texts on. Implemented by the main window,
// and by a recorder in tests.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "platform/Interface.h"

namespace capture {

// The parts that show a text. A pane is the member of its pair that is in use.
enum class ViewText {
  lblMsg,
  lblStatus,
  lblAutoStop,
  lblMousePos,
  txthWnd,
  txtWin0,
  txtWin1,
  txtWin2,
  txtWin3,
  txtCount,
  txtStatus,
  lblTextKind,  // the method of the top pane's text
  lblListKind,  // the method of the list in the bottom pane
  TopPane,
  BottomPane,
};

enum class CaptureTimer { Timer_MsgLoop, Timer2, Timer_Go, Timer_End };

struct TimerInterval {
  CaptureTimer timer;
  std::uint32_t milliseconds;
};

// All timers of the program. Each is off until it is enabled. The 5 ms, which Windows makes 10, are
// odd, and stay: docs/ODDITIES.md.
constexpr TimerInterval kTimers[] = {
    {CaptureTimer::Timer_MsgLoop, 5},
    {CaptureTimer::Timer2, 10},
    {CaptureTimer::Timer_Go, 10},
    {CaptureTimer::Timer_End, 10},
};

class CaptureView : public platform::Interface {
 public:
  virtual std::wstring Text(ViewText part) const = 0;
  // Shows text; does nothing when the part already shows it.
  virtual void SetText(ViewText part, const std::wstring& text) = 0;
  virtual void SetVisible(ViewText part, bool visible) = 0;
  // Stores the handle that txthWnd shows, always in decimal.
  virtual void SetHandleTag(const std::wstring& decimal) = 0;

  virtual void SetGoButton(const std::wstring& caption, const std::wstring& toolTip) = 0;
  virtual HWND GoButton() const = 0;
  virtual HWND MainWindow() const = 0;
  virtual void FocusTopPane() = 0;
  virtual void BringToFront() = 0;
  virtual void HideMainWindow() = 0;

  virtual void EnableTimer(CaptureTimer timer, bool enable) = 0;

  virtual void ShowMarkers() = 0;
  virtual void PlaceMarkers(POINT point) = 0;
  virtual void UnloadMarkers() = 0;
};

}  // namespace capture
