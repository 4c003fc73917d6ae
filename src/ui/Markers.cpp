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

constexpr std::array<MarkerPlan, 4> kMarkers{{
    {L"frmP0", -2, -2},
    {L"frmP1", 2, -2},
    {L"frmP2", 2, 2},
    {L"frmP3", -2, 2},
}};

}  // namespace

class Marker : public Window {
 public:
  explicit Marker(const MarkerPlan& plan) : red_(CreateSolidBrush(RGB(255, 0, 0))) {
    WindowPlan window{plan.name};
    window.style = WS_POPUP;
    window.exStyle = WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE;
    window.place = {0, 0, kMarkerSize, kMarkerSize};
    Create(window);
  }

  void Show(bool visible) {
    const UINT show = visible ? SWP_SHOWWINDOW : SWP_HIDEWINDOW;
    SetWindowPos(Handle(), HWND_TOPMOST, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | show);
  }

  void MoveTo(int left, int top) {
    SetWindowPos(Handle(), nullptr, left, top, 0, 0,
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
}

void Markers::Place(POINT point) {
  Load();
  for (std::size_t i = 0; i < markers_.size(); ++i) {
    markers_[i]->MoveTo(point.x + kMarkers[i].dx, point.y + kMarkers[i].dy);
  }
}

void Markers::Unload() {
  for (auto& marker : markers_) marker.reset();
}

HWND Markers::Handle(std::size_t index) const {
  return markers_[index] ? markers_[index]->Handle() : nullptr;
}

}  // namespace ui
