// The hot-key dialog: chooses the key that starts and stops a capture.
#pragma once

#include <windows.h>

#include <functional>

#include "settings/Settings.h"
#include "ui/Dialog.h"

namespace ui {

class frmOption : public Dialog {
 public:
  // closed is called each time the dialog has closed, whatever was chosen.
  frmOption(settings::Settings& settings, std::function<void()> closed);

  // Opens the dialog; owner takes no input until it has closed. Returns at once: the one message
  // loop of the program goes on, and with it a capture.
  void Show(HWND owner);

 protected:
  LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  bool Form_Load();
  void cmdClose_Click(int index);
  void Unload();

  settings::Settings& settings_;
  std::function<void()> closed_;
  HWND owner_ = nullptr;
  bool hotTClicked_ = false;  // since the dialog was opened
};

}  // namespace ui
