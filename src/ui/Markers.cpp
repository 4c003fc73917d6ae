#include "ui/Markers.h"

#include "platform/UniqueHandle.h"
#include "ui/Window.h"

namespace ui {
namespace {

constexpr int kMarkerSize = 2;  // pixels

struct MarkerPlan {
  const wchar_t* name;
  int dx;  // of its top left corner from the read point, in pixels
  int dy;
};

// Not symmetric. Odd, and stays: docs/ODDITIES.md.
constexpr std::array<MarkerPlan, kMarkerCount> kMarkers{{
    {L"frmP0", -2, -2},
    {L"frmP1", 2, -2},
    {L"frmP2", 2, 2},
    {L"frmP3", -2, 2},
}};

bool IsThisProgramInFront() {
  DWORD process = 0;
  GetWindowThreadProcessId(GetForegroundWindow(), &process);
  return process == GetCurrentProcessId();
}

// While it exists, no window of this thread becomes active or gets the focus.
class ActivationRefused {
 public:
  ActivationRefused() : hook_(SetWindowsHookExW(WH_CBT, Refuse, nullptr, GetCurrentThreadId())) {}
  ~ActivationRefused() { UnhookWindowsHookEx(hook_); }
  ActivationRefused(const ActivationRefused&) = delete;
  ActivationRefused& operator=(const ActivationRefused&) = delete;

  bool IsInForce() const { return hook_ != nullptr; }

 private:
  static LRESULT CALLBACK Refuse(int code, WPARAM wParam, LPARAM lParam) noexcept {
    const LRESULT others = CallNextHookEx(nullptr, code, wParam, lParam);
    return code == HCBT_ACTIVATE || code == HCBT_SETFOCUS ? 1 : others;
  }

  HHOOK hook_;
};

}  // namespace

POINT MarkerPlace(std::size_t index, POINT readPoint) {
  return {readPoint.x + kMarkers[index].dx, readPoint.y + kMarkers[index].dy};
}

class Marker : public Window {
 public:
  explicit Marker(const MarkerPlan& plan) : red_(CreateSolidBrush(RGB(255, 0, 0))) {
    WindowPlan window{plan.name};
    window.style = WS_POPUP;
    // Layered and transparent: the pointer and WindowFromPoint ignore it.
    window.exStyle =
        WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE | WS_EX_LAYERED | WS_EX_TRANSPARENT;
    window.place = {0, 0, kMarkerSize, kMarkerSize};
    Create(window);
    SetLayeredWindowAttributes(Handle(), 0, 255, LWA_ALPHA);
    SetWindowPos(Handle(), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
  }

  void Show(bool visible) {
    const UINT show = visible ? SWP_SHOWWINDOW : SWP_HIDEWINDOW;
    SetWindowPos(Handle(), HWND_TOPMOST, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | show);
  }

  void MoveTo(POINT place) {
    SetWindowPos(Handle(), nullptr, place.x, place.y, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  }

 protected:
  LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    switch (message) {
      case WM_ERASEBKGND: {
        RECT whole{};
        GetClientRect(Handle(), &whole);
        FillRect(reinterpret_cast<HDC>(wParam), &whole, red_.Get());
        return 1;
      }
      case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
      default:
        return Default(message, wParam, lParam);
    }
  }

 private:
  platform::UniqueBrush red_;
};

Markers::Markers() = default;
Markers::~Markers() = default;

void Markers::Load() {
  for (std::size_t i = 0; i < markers_.size(); ++i) {
    if (!markers_[i]) markers_[i] = std::make_unique<Marker>(kMarkers[i]);
  }
}

void Markers::Show(bool visible) {
  if (visible) Load();
  for (const auto& marker : markers_) {
    if (marker) marker->Show(visible);
  }
  if (visible) CallToFront();
}

void Markers::CallToFront() {
  if (!IsThisProgramInFront()) return;
  // Showing them has put them on top already. The activation that these calls cause is refused:
  // once a second it would take the focus from a user who types in one of our dialogs, and close an
  // open list there.
  const ActivationRefused refused;
  if (!refused.IsInForce()) return;
  for (const auto& marker : markers_) SetForegroundWindow(marker->Handle());
}

void Markers::Place(POINT point) {
  Load();
  for (std::size_t i = 0; i < markers_.size(); ++i) {
    markers_[i]->MoveTo(MarkerPlace(i, point));
  }
}

void Markers::Unload() {
  for (auto& marker : markers_) marker.reset();
}

HWND Markers::Handle(std::size_t index) const {
  return markers_[index] ? markers_[index]->Handle() : nullptr;
}

}  // namespace ui
