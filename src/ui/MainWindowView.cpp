#include "ui/MainWindowView.h"

#include "ui/ControlIds.h"

namespace ui {

using capture::CaptureTimer;
using capture::ViewText;

MainWindowView::MainWindowView(MainWindowFace& face, const settings::Settings& settings)
    : face_(face), settings_(settings) {}

HWND MainWindowView::ControlOf(ViewText part) const {
  switch (part) {
    case ViewText::lblMsg:
      return face_.Control(lblMsg);
    case ViewText::lblStatus:
      return face_.Control(lblStatus);
    case ViewText::lblAutoStop:
      return face_.Control(lblAutoStop);
    case ViewText::lblMousePos:
      return face_.Control(lblMousePos);
    case ViewText::txthWnd:
      return face_.Control(txthWnd);
    case ViewText::txtWin0:
      return face_.Control(txtWin0);
    case ViewText::txtWin1:
      return face_.Control(txtWin1);
    case ViewText::txtWin2:
      return face_.Control(txtWin2);
    case ViewText::txtWin3:
      return face_.Control(txtWin3);
    case ViewText::txtCount:
      return face_.Control(txtCount);
    case ViewText::txtStatus:
      return face_.Control(txtStatus);
    case ViewText::lblTextKind:
      return face_.Control(lblTextKind);
    case ViewText::lblListKind:
      return face_.Control(lblListKind);
    case ViewText::TopPane:
      return face_.TopPane();
    case ViewText::BottomPane:
      return face_.BottomPane();
  }
  return nullptr;
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
