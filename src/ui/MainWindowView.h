// The main window as the capture's screen.
#pragma once

#include <map>

#include "capture/CaptureView.h"
#include "settings/Settings.h"
#include "ui/MainWindowFace.h"
#include "ui/Markers.h"

namespace ui {

class MainWindowView : public capture::CaptureView {
 public:
  MainWindowView(MainWindowFace& face, const settings::Settings& settings);

  std::wstring Text(capture::ViewText part) const override;
  void SetText(capture::ViewText part, const std::wstring& text) override;
  void SetVisible(capture::ViewText part, bool visible) override;
  void SetHandleTag(const std::wstring& decimal) override { handleTag_ = decimal; }

  void SetGoButton(const std::wstring& caption, const std::wstring& toolTip) override;
  HWND GoButton() const override;
  HWND MainWindow() const override { return face_.Window(); }
  void FocusTopPane() override;
  void BringToFront() override;
  void HideMainWindow() override;

  void EnableTimer(capture::CaptureTimer timer, bool enable) override;

  void ShowMarkers() override;
  void PlaceMarkers(POINT point) override;
  void UnloadMarkers() override;

  // The handle that was last shown, in decimal; empty before the first report.
  const std::wstring& HandleTag() const { return handleTag_; }

 private:
  HWND ControlOf(capture::ViewText part) const;

  MainWindowFace& face_;
  const settings::Settings& settings_;
  Markers markers_;
  std::wstring handleTag_;
  // What each part shows. Nothing else writes there, and reading the controls several times in
  // every pass would cost more than the pass itself.
  std::map<capture::ViewText, std::wstring> shown_;
};

}  // namespace ui
