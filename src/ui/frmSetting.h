// The settings dialog: four pages of controls that write into the settings record at once.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <vector>

#include "capture/CaptureState.h"
#include "settings/Settings.h"
#include "ui/Dialog.h"
#include "ui/SettingControls.h"
#include "ui/frmOption.h"

namespace ui {

class frmSetting : public Dialog {
 public:
  // closed is called each time the dialog has closed.
  frmSetting(settings::Settings& settings, capture::CaptureState& state,
             std::function<void()> closed);

  // Opens the dialog; owner stays usable. Brings it to the front when it is open already.
  void Show(HWND owner);

 protected:
  LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  bool Form_Load(HWND owner);
  void Form_Resize();
  void OnCommand(int id, int notification);
  void PaintPageButton(const DRAWITEMSTRUCT& item) const;

  void lblButton_Click(std::int32_t page);
  void ShowPage(std::int32_t page);
  void Change(const SettingControl& control, int notification);
  void txtShift_LostFocus();
  void cmdHotKey_Click();
  void cmdClose_Click();
  void Unload();

  void Store(const SettingControl& control, int notification);
  void ShowWhatDepends();
  void ShowHotKey();

  settings::Settings& settings_;
  capture::CaptureState& state_;
  std::function<void()> closed_;
  std::vector<ControlRow> rows_;
  std::int32_t page_ = 0;  // the one that is shown
  frmOption option_;
};

}  // namespace ui
