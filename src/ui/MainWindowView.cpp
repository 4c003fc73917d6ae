#include "ui/MainWindowView.h"

#include <iterator>

#include "ui/ControlIds.h"

namespace ui {
namespace {

// By ViewText; the panes follow.
constexpr int kParts[] = {lblMsg,    lblStatus,   lblAutoStop, lblMousePos, txthWnd,
                          txtWin0,   txtWin1,     txtWin2,     txtWin3,     txtCount,
                          txtStatus, lblTextKind, lblListKind};
static_assert(std::size(kParts) == static_cast<std::size_t>(capture::ViewText::TopPane));

}  // namespace

using capture::CaptureTimer;
using capture::ViewText;

MainWindowView::MainWindowView(MainWindowFace& face, const settings::Settings& settings)
    : face_(face), settings_(settings) {}

HWND MainWindowView::ControlOf(ViewText part) const {
  if (part == ViewText::TopPane) return face_.TopPane();
  if (part == ViewText::BottomPane) return face_.BottomPane();
  return face_.Control(kParts[static_cast<std::size_t>(part)]);
}

std::wstring MainWindowView::Text(ViewText part) const {
  const auto found = shown_.find(part);
  return found == shown_.end() ? std::wstring() : found->second;
}

void MainWindowView::SetText(ViewText part, const std::wstring& text) {
  std::wstring& shown = shown_[part];
  if (shown == text) return;
  if (part == ViewText::TopPane || part == ViewText::BottomPane) {
    face_.SetPaneText(ControlOf(part), text);
  } else {
    SetWindowTextW(ControlOf(part), text.c_str());
    // A message may be wider than its line.
    if (part == ViewText::lblMsg) face_.Tips().Set(ControlOf(part), text);
  }
  // Swapped, not assigned: an assignment would keep the memory of a huge text.
  std::wstring(text).swap(shown);
}

void MainWindowView::SetVisible(ViewText part, bool visible) {
  ShowWindow(ControlOf(part), visible ? SW_SHOWNA : SW_HIDE);
}

void MainWindowView::SetGoButton(const std::wstring& caption, const std::wstring& toolTip) {
  SetWindowTextW(GoButton(), caption.c_str());
  face_.Tips().Set(GoButton(), toolTip);
}

HWND MainWindowView::GoButton() const { return face_.Control(cmdGo); }

void MainWindowView::FocusTopPane() { SetFocus(face_.TopPane()); }

void MainWindowView::BringToFront() {
  if (IsIconic(face_.Window())) ShowWindow(face_.Window(), SW_RESTORE);
  SetForegroundWindow(face_.Window());
}

void MainWindowView::HideMainWindow() { ShowWindow(face_.Window(), SW_HIDE); }

void MainWindowView::EnableTimer(CaptureTimer timer, bool enable) {
  // With an identifier of 0 the system would choose one.
  const auto id = static_cast<UINT_PTR>(timer) + 1;
  if (!enable) {
    KillTimer(face_.Window(), id);
    return;
  }
  for (const capture::TimerInterval& row : capture::kTimers) {
    if (row.timer == timer) SetTimer(face_.Window(), id, row.milliseconds, nullptr);
  }
}

void MainWindowView::ShowMarkers() { markers_.Show(settings_.shift == 1); }

void MainWindowView::PlaceMarkers(POINT point) { markers_.Place(point); }

void MainWindowView::UnloadMarkers() { markers_.Unload(); }

}  // namespace ui
