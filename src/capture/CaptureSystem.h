// What the capture loop needs from Windows and the readers. Tests replace it by a recorder, which
// also moves the clock.
#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>
#include <string>

#include "platform/Interface.h"
#include "platform/ReadPoint.h"

namespace capture {

class CaptureSystem : public platform::Interface {
 public:
  virtual std::uint32_t TickCount() = 0;  // milliseconds, wraps after 49.7 days
  virtual void Sleep(std::uint32_t milliseconds) = 0;
  virtual void Pump() = 0;

  virtual POINT CursorPosition() = 0;
  virtual HWND WindowAt(POINT point) = 0;
  // The window that is meant where the system gives that one.
  virtual HWND WindowMeant(HWND given, POINT point) = 0;
  virtual HWND Parent(HWND hwnd) = 0;
  virtual HWND TopParent(HWND hwnd) = 0;
  virtual POINT ToClient(HWND hwnd, POINT point) = 0;
  virtual HWND Foreground() = 0;

  virtual bool HotKeyPressed(std::int32_t code) = 0;
  virtual bool IsKeyDown(std::int32_t virtualKey) = 0;
  virtual void SendSelectAll() = 0;

  virtual bool PutOnClipboard(const std::wstring& text) = 0;
  virtual void PlayChime(const std::wstring& file) = 0;
  virtual std::wstring TooltipText() = 0;
  virtual void AccAction(std::int32_t mode, const platform::ReadPoint& point) = 0;
};

// The real one. owner is the window that owns what is put on the clipboard.
std::unique_ptr<CaptureSystem> MakeCaptureSystem(HWND owner);

}  // namespace capture
