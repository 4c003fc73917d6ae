// The face of the main window: its controls, their places, fonts, tips and colours. It shows
// things; other rooms decide when.
#pragma once

#include <windows.h>

#include <string>

#include "capture/CaptureState.h"
#include "settings/Settings.h"
#include "ui/Controls.h"
#include "ui/MainWindowLayout.h"
#include "ui/ToolTips.h"

namespace ui {

constexpr COLORREF kMousePosColour = RGB(128, 128, 128);
constexpr COLORREF kMousePosHighlight = RGB(128, 128, 255);

class MainWindowFace {
 public:
  MainWindowFace(settings::Settings& settings, capture::CaptureState& state);

  // Whether id is one of the text boxes, panes included.
  static bool IsBox(int id);

  // Creates everything in window, at the window's DPI.
  void Create(HWND window);

  HWND Window() const { return window_; }
  HWND Control(int id) const { return controls_[id]; }
  ToolTips& Tips() { return tips_; }
  const TwipsScale& Scale() const { return scale_; }
  const MainWindowGeometry& Geometry() const { return geometry_; }

  std::int32_t InnerHeight() const;  // of the window, in twips

  // The members of the pane pairs that the setting "turn back" has in use.
  HWND TopPane() const;
  HWND BottomPane() const;

  // Puts text into a pane and its character counts into the pane's tool tip.
  void SetPaneText(HWND pane, const std::wstring& text);

  // Lays the window out again; does nothing while the layout is held back or the window is
  // minimised.
  void Form_Resize();
  void HoldLayout(bool hold) { layoutHeld_ = hold; }
  bool IsLayoutHeld() const { return layoutHeld_; }

  // Takes over a new DPI: scale, fonts, and every control's place.
  void ApplyDpi(UINT dpi);

  // Height of the top pane in twips. A negative one changes nothing.
  void SetVisibleTopPaneHeight(std::int32_t height);

  // Makes the top pane and the centre strip end at position (twips from the top), keeps the height
  // as the setting "top height" and lays out.
  void SetTopPaneHeight(std::int32_t position);

  // Uses the given member of each pane pair, with the texts of the previous one, and lays out.
  void TurnPanesBack(std::int32_t member);

  // The splitter bar: shown at the grip, moved to a top position in twips, hidden.
  void ShowSplitterBar();
  void MoveSplitterBar(std::int32_t top);
  void HideSplitterBar();

  void SetMousePosColour(COLORREF colour);
  // Answers WM_CTLCOLORSTATIC for one of the window's controls.
  HBRUSH PaintLabel(HDC dc, HWND control) const;

 private:
  std::int32_t InnerWidth() const;  // twips
  void UseScale(UINT dpi);
  void Apply();

  settings::Settings& settings_;
  capture::CaptureState& state_;
  HWND window_ = nullptr;
  ControlSet controls_;
  ToolTips tips_;
  TwipsScale scale_;
  MainWindowGeometry geometry_;
  bool layoutHeld_ = false;
  COLORREF mousePosColour_ = kMousePosColour;
};

}  // namespace ui
