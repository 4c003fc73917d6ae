// The settings dialog in the test's own process, with the record that it changes.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "DialogDriving.h"
#include "ui/frmSetting.h"

namespace ui {

class SettingDialogFixture : public testing::Test {
 protected:
  SettingDialogFixture() {
    state_.TwipsPerPixelX = 15;
    state_.TwipsPerPixelY = 15;
    settings_.settingLeft = 1500;
    settings_.settingTop = 600;
    settings_.hotkey = L"F5";
  }

  void Open() {
    dialog_.Show(nullptr);
    ASSERT_NE(dialog_.Handle(), nullptr);
  }
  HWND Control(int id) const { return FindControl(dialog_.Handle(), id); }
  std::wstring Text(int id) const { return WindowText(Control(id)); }
  // Whether the control itself is shown, on whatever page.
  bool IsShown(int id) const {
    return (GetWindowLongPtrW(Control(id), GWL_STYLE) & WS_VISIBLE) != 0;
  }
  void CloseBox() { SendMessageW(dialog_.Handle(), WM_CLOSE, 0, 0); }

  settings::Settings settings_;
  capture::CaptureState state_;
  int closed_ = 0;
  frmSetting dialog_{settings_, state_, [this] { ++closed_; }};
};

}  // namespace ui
