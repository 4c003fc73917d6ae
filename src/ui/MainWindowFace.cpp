#include "ui/MainWindowFace.h"

#include <algorithm>
#include <iterator>

#include "extract/TextCount.h"
#include "ui/ControlIds.h"
#include "ui/EditBehaviour.h"
#include "ui/MainWindowControls.h"
#include "ui/SplitterGrip.h"

namespace ui {
namespace {

constexpr COLORREF kCountdownColour = RGB(192, 0, 0);

constexpr int kBoxes[] = {txtWinTextT0, txtWinTextT1, txtWinTextB0, txtWinTextB1,
                          txthWnd,      txtStatus,    txtCount,     txtWin0,
                          txtWin1,      txtWin2,      txtWin3};

}  // namespace

MainWindowFace::MainWindowFace(settings::Settings& settings, capture::CaptureState& state)
    : settings_(settings), state_(state), geometry_(DesignGeometry()) {}

void MainWindowFace::Create(HWND window) {
  window_ = window;
  RegisterSplitterClass();
  const UINT dpi = GetDpiForWindow(window);
  UseScale(dpi);
  controls_.Create(window, MainWindowControls(), dpi);
  for (const int box : kBoxes) AddEditBehaviour(Control(box), window);
  tips_.Create(window, dpi);
}

bool MainWindowFace::IsBox(int id) { return std::ranges::find(kBoxes, id) != std::end(kBoxes); }

void MainWindowFace::SetPaneText(HWND pane, const std::wstring& text) {
  SetWindowTextW(pane, text.c_str());
  tips_.Set(pane, extract::GetTextCountInfo(text));
}

HWND MainWindowFace::TopPane() const { return Control(TopPaneId(settings_.turnBack)); }

HWND MainWindowFace::BottomPane() const { return Control(BottomPaneId(settings_.turnBack)); }

std::int32_t MainWindowFace::InnerWidth() const {
  RECT inner{};
  GetClientRect(window_, &inner);
  return scale_.TwipsX(inner.right);
}

std::int32_t MainWindowFace::InnerHeight() const {
  RECT inner{};
  GetClientRect(window_, &inner);
  return scale_.TwipsY(inner.bottom);
}

void MainWindowFace::Form_Resize() {
  if (layoutHeld_ || IsIconic(window_)) return;
  geometry_ = Layout(geometry_, {InnerWidth(), InnerHeight(), scale_}, settings_.topHeight);
  Apply();
}

void MainWindowFace::Apply() {
  for (const MovedControl& moved : MovedControls()) {
    controls_.Place(moved.id, geometry_.*moved.place, scale_);
  }
  controls_.Place(TopPaneId(settings_.turnBack), geometry_.T, scale_);
  controls_.Place(BottomPaneId(settings_.turnBack), geometry_.B, scale_);
  for (const int member : {0, 1}) {
    const int show = member == settings_.turnBack ? SW_SHOWNA : SW_HIDE;
    ShowWindow(Control(TopPaneId(member)), show);
    ShowWindow(Control(BottomPaneId(member)), show);
  }
  HideSplitterBar();
}

void MainWindowFace::UseScale(UINT dpi) {
  scale_ = ScaleForDpi(dpi);
  state_.TwipsPerPixelX = scale_.TwipsPerPixelX;
  state_.TwipsPerPixelY = scale_.TwipsPerPixelY;
}

void MainWindowFace::ApplyDpi(UINT dpi) {
  UseScale(dpi);
  controls_.ApplyDpi(dpi);
  Form_Resize();
}

void MainWindowFace::SetVisibleTopPaneHeight(std::int32_t height) {
  if (height >= 0) geometry_.T.height = height;
}

void MainWindowFace::SetTopPaneHeight(std::int32_t position) {
  const std::int32_t height = TopPaneHeightFor(position, geometry_);
  if (height >= 0) {
    geometry_.T.height = scale_.TwipsY(scale_.PixelsY(height));
    settings_.topHeight = geometry_.T.height;
  }
  Form_Resize();
}

void MainWindowFace::TurnPanesBack(std::int32_t member) {
  const HWND oldTop = TopPane();
  const HWND oldBottom = BottomPane();
  settings_.turnBack = member;
  if (TopPane() != oldTop) {
    SetPaneText(TopPane(), WindowText(oldTop));
    SetPaneText(BottomPane(), WindowText(oldBottom));
  }
  Form_Resize();
}

void MainWindowFace::ShowSplitterBar() {
  geometry_.picSplitter = geometry_.imgSplitter;
  geometry_.picSplitter.height = geometry_.imgSplitter.height / 2;
  MoveSplitterBar(geometry_.picSplitter.top);
  SetWindowPos(Control(picSplitter), HWND_TOP, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void MainWindowFace::MoveSplitterBar(std::int32_t top) {
  geometry_.picSplitter.top = top;
  controls_.Place(picSplitter, geometry_.picSplitter, scale_);
}

void MainWindowFace::HideSplitterBar() { ShowWindow(Control(picSplitter), SW_HIDE); }

void MainWindowFace::SetMousePosColour(COLORREF colour) {
  mousePosColour_ = colour;
  InvalidateRect(Control(lblMousePos), nullptr, TRUE);
}

HBRUSH MainWindowFace::PaintLabel(HDC dc, HWND control) const {
  const int id = GetDlgCtrlID(control);
  // White: boxes that cannot be edited are there to be read and copied, and grey ones look
  // disabled.
  const int background = IsBox(id) ? COLOR_WINDOW : COLOR_BTNFACE;
  SetBkColor(dc, GetSysColor(background));
  SetTextColor(dc, GetSysColor(IsBox(id) ? COLOR_WINDOWTEXT : COLOR_BTNTEXT));
  if (id == lblMousePos) SetTextColor(dc, mousePosColour_);
  if (id == lblAutoStop) SetTextColor(dc, kCountdownColour);
  return GetSysColorBrush(background);
}

}  // namespace ui
