#include "capture/CaptureSystem.h"

#include "accessibility/AccessibleAction.h"
#include "capture/Chime.h"
#include "extract/ControlText.h"
#include "extract/Win32API_Window.h"
#include "extract/WindowAtPoint.h"
#include "platform/Clipboard.h"
#include "platform/MessagePump.h"
#include "settings/MyKeyboard.h"
#include "settings/MySub_HotKey.h"

namespace capture {
namespace {

class WindowsCaptureSystem : public CaptureSystem {
 public:
  explicit WindowsCaptureSystem(HWND owner) : owner_(owner) {}

  std::uint32_t TickCount() override { return GetTickCount(); }
  void Sleep(std::uint32_t milliseconds) override { ::Sleep(milliseconds); }
  void Pump() override { platform::Pump(); }

  POINT CursorPosition() override {
    POINT point{};
    GetCursorPos(&point);
    return point;
  }
  HWND WindowAt(POINT point) override { return WindowFromPoint(point); }
  HWND WindowMeant(HWND given, POINT point) override { return extract::WindowMeant(given, point); }
  HWND Parent(HWND hwnd) override { return GetParent(hwnd); }
  HWND TopParent(HWND hwnd) override { return Win32API_Window::GetTopParent(hwnd); }
  POINT ToClient(HWND hwnd, POINT point) override {
    ScreenToClient(hwnd, &point);
    return point;
  }
  HWND Foreground() override { return GetForegroundWindow(); }

  bool HotKeyPressed(std::int32_t code) override {
    return MySub_HotKey::HotKeyPressed(code, settings::SystemKeyboard());
  }
  bool IsKeyDown(std::int32_t virtualKey) override {
    return MyKeyboard::IsKeyHeld(virtualKey, 0x8000, settings::SystemKeyboard());
  }
  void SendSelectAll() override { MyKeyboard::sKeyEventSet(MyKeyboard::SelectAllStrokes()); }

  bool PutOnClipboard(const std::wstring& text) override {
    return platform::PutTextOnClipboard(owner_, text);
  }
  void PlayChime(const std::wstring& file) override { capture::PlayChime(file); }
  std::wstring TooltipText() override { return extract::GetTooltipText(); }
  void AccAction(std::int32_t mode, const platform::ReadPoint& point) override {
    const HWND window = point.window == nullptr ? WindowFromPoint(point.at) : point.window;
    if (!IsHungAppWindow(window)) MyAccessible::AccActionAt(mode, point);
  }

 private:
  HWND owner_;
};

}  // namespace

std::unique_ptr<CaptureSystem> MakeCaptureSystem(HWND owner) {
  return std::make_unique<WindowsCaptureSystem>(owner);
}

}  // namespace capture
