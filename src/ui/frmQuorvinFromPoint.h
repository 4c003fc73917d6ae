// The main window: what its messages do. Names like this one are odd, and stay: docs/ODDITIES.md.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "capture/CaptureContext.h"
#include "capture/CaptureState.h"
#include "capture/CaptureSystem.h"
#include "report/ReportReaders.h"
#include "settings/Settings.h"
#include "ui/DialogKeys.h"
#include "ui/MainWindowConfig.h"
#include "ui/MainWindowFace.h"
#include "ui/MainWindowView.h"
#include "ui/Window.h"
#include "ui/frmSetting.h"

namespace ui {

struct MainWindowPlan {
  std::wstring folder;       // where Conf.txt and the help page are
  std::wstring commandLine;  // what follows the program's name
  std::function<void()> endProgram;
};

class frmQuorvinFromPoint : public Window {
 public:
  frmQuorvinFromPoint(settings::Settings& settings, capture::CaptureState& state,
                      MainWindowPlan plan);
  ~frmQuorvinFromPoint() override;

  // Creates the window and runs its start-up. Returns false when the system gives no window.
  bool Load();

 protected:
  LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  // Start-up, in this order; later steps rely on earlier ones.
  void Form_Load();
  void ShowVersion();
  void TakeTwipsPerPixel();
  void PrepareLabels();
  void LoadConfig();
  void ApplyDisplaySettings();

  // Messages.
  LRESULT OnCommand(int id, int notification);
  LRESULT OnNotify(const NMHDR& header);
  void OnBoxClick(int id);
  void OnBoxDoubleClick(int id);
  void OnTimer(capture::CaptureTimer timer);
  void OnDpiChanged(UINT dpi, const RECT& suggested);
  void OnSplitter(WPARAM event, int yPixels);

  // Controls.
  void cmdGo_Click();
  void cmdSetting_Click();
  void chkAutoStop_Click();
  void chkDetail_Click();
  void chkTurnBack_Click();
  void lblMousePos_DblClick();
  void lblMsg_DblClick();
  void txthWnd_DblClick();
  void Help_Url_Click();
  void MyUrl_Click();

  // Closing.
  void Form_Unload();
  void Timer_End_Timer();
  void SaveConfig();

  void ShowMousePosTip();
  capture::CaptureContext Context();
  void RunCapture();

  settings::Settings& settings_;
  capture::CaptureState& state_;
  MainWindowPlan plan_;
  MainWindowFace face_;
  MainWindowView view_;
  MainWindowConfig config_;
  std::unique_ptr<capture::CaptureSystem> system_;
  std::unique_ptr<report::ReportReaders> readers_;
  frmSetting setting_;
  FocusMemory focus_;
  bool SplitterMoving_ = false;
};

}  // namespace ui
