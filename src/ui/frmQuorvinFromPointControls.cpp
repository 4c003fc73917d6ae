// The main window's controls: what a click, a double click, a toggle or a drag does.
#include <windows.h>

#include <commctrl.h>

#include "capture/CaptureWords.h"
#include "capture/OutputDelivery.h"
#include "capture/PaneCopy.h"
#include "extract/StringUtilities.h"
#include "platform/API_Shell.h"
#include "platform/HandleText.h"
#include "ui/ControlIds.h"
#include "ui/EditBehaviour.h"
#include "ui/HelpLinks.h"
#include "ui/SplitterGrip.h"
#include "ui/frmQuorvinFromPoint.h"

namespace ui {
namespace {

using capture::ViewText;

constexpr std::wstring_view kDebugMark = L" - debug";

}  // namespace

LRESULT frmQuorvinFromPoint::OnCommand(int id, int notification) {
  struct Reaction {
    int id;
    int notification;
    void (frmQuorvinFromPoint::*handler)();
  };
  static constexpr Reaction kReactions[] = {
      {cmdGo, BN_CLICKED, &frmQuorvinFromPoint::cmdGo_Click},
      {cmdSetting, BN_CLICKED, &frmQuorvinFromPoint::cmdSetting_Click},
      {chkAutoStop, BN_CLICKED, &frmQuorvinFromPoint::chkAutoStop_Click},
      {chkDetail, BN_CLICKED, &frmQuorvinFromPoint::chkDetail_Click},
      {chkTurnBack, BN_CLICKED, &frmQuorvinFromPoint::chkTurnBack_Click},
      {lblMousePos, STN_DBLCLK, &frmQuorvinFromPoint::lblMousePos_DblClick},
      {lblMsg, STN_DBLCLK, &frmQuorvinFromPoint::lblMsg_DblClick},
  };
  if (MainWindowFace::IsBox(id)) {
    if (notification == kBoxClick) OnBoxClick(id);
    if (notification == kBoxDoubleClick) OnBoxDoubleClick(id);
  }
  for (const Reaction& reaction : kReactions) {
    if (reaction.id != id || reaction.notification != notification) continue;
    (this->*reaction.handler)();
  }
  return 0;
}

void frmQuorvinFromPoint::OnBoxClick(int id) {
  if (settings_.clipboard != 1) return;
  capture::CopyText(Context(), WindowText(face_.Control(id)), L"テキスト転送完了！");
}

void frmQuorvinFromPoint::OnBoxDoubleClick(int id) {
  if (id == txthWnd) txthWnd_DblClick();
  SendMessageW(face_.Control(id), EM_SETSEL, 0, -1);
}

LRESULT frmQuorvinFromPoint::OnNotify(const NMHDR& header) {
  if (header.code != static_cast<UINT>(NM_CLICK) && header.code != static_cast<UINT>(NM_RETURN)) {
    return 0;
  }
  if (header.idFrom == Help_Url) Help_Url_Click();
  if (header.idFrom == MyUrl) MyUrl_Click();
  return 0;
}

void frmQuorvinFromPoint::OnSplitter(WPARAM event, int yPixels) {
  const std::int32_t y = face_.Scale().TwipsY(yPixels);
  switch (event) {
    case kSplitterPress:
      face_.ShowSplitterBar();
      SplitterMoving_ = true;
      break;
    case kSplitterMove:
      if (SplitterMoving_) {
        face_.MoveSplitterBar(
            SplitterPosition(face_.Geometry().imgSplitter.top, y, face_.InnerHeight()));
      }
      break;
    case kSplitterRelease:
      if (!SplitterMoving_) break;
      SplitterMoving_ = false;
      face_.SetTopPaneHeight(face_.Geometry().picSplitter.top);
      face_.HideSplitterBar();
      break;
    case kSplitterCancel:
      SplitterMoving_ = false;
      face_.HideSplitterBar();
      break;
    default:
      break;
  }
}

void frmQuorvinFromPoint::cmdGo_Click() {
  const std::wstring caption = WindowText(face_.Control(cmdGo));
  if (caption == L"開始") {
    RunCapture();
  } else if (caption == L"停止") {
    state_.CaptureRunning = false;
  }
}

void frmQuorvinFromPoint::cmdSetting_Click() { setting_.Show(Handle()); }

void frmQuorvinFromPoint::chkAutoStop_Click() {
  settings_.autoStop = BoxValue(face_.Control(chkAutoStop));
}

void frmQuorvinFromPoint::chkDetail_Click() {
  settings_.detail = BoxValue(face_.Control(chkDetail));
  capture::PaneDelivery(view_).RedisplayPanes(state_, settings_);
}

void frmQuorvinFromPoint::chkTurnBack_Click() {
  face_.TurnPanesBack(BoxValue(face_.Control(chkTurnBack)));
}

void frmQuorvinFromPoint::ShowMousePosTip() {
  face_.Tips().Set(
      face_.Control(lblMousePos),
      settings_.mousPos == L"client"
          ? L"マウスポインタ（クライアント）座標  ダブルクリックでスクリーン座標に切り替え"
          : L"マウスポインタ（スクリーン）座標  ダブルクリックでクライアント座標に切り替え");
}

void frmQuorvinFromPoint::lblMousePos_DblClick() {
  const bool toClient = settings_.mousPos == L"screen";
  settings_.mousPos = toClient ? L"client" : L"screen";
  face_.SetMousePosColour(toClient ? kMousePosHighlight : kMousePosColour);
  ShowMousePosTip();
}

void frmQuorvinFromPoint::lblMsg_DblClick() {
  std::wstring caption = WindowText(Handle());
  if (state_.DebugMode) {
    // Every mark, and a hint without its second line. Odd, and stays: docs/ODDITIES.md.
    caption = extract::Replaced(caption, kDebugMark, {});
    const std::wstring hint = capture::StopHint(settings_.hotkey, 0, {});
    view_.SetText(ViewText::lblStatus, hint);
    view_.SetText(ViewText::lblMsg, hint);
  } else {
    caption += kDebugMark;
    view_.SetText(ViewText::lblStatus, {});
    view_.SetText(ViewText::lblMsg, {});
  }
  SetWindowTextW(Handle(), caption.c_str());
  state_.DebugMode = !state_.DebugMode;
}

void frmQuorvinFromPoint::txthWnd_DblClick() {
  settings_.winHandle = settings_.winHandle == L"dec" ? L"hex" : L"dec";
  if (view_.HandleTag().empty()) return;
  const auto handle = reinterpret_cast<HWND>(INT_PTR{std::stol(view_.HandleTag())});
  view_.SetText(ViewText::txthWnd, platform::ShownHandle(handle, settings_.winHandle));
}

void frmQuorvinFromPoint::Help_Url_Click() {
  API_Shell::OpenWithExplorer(HelpAddress(plan_.folder));
}

void frmQuorvinFromPoint::MyUrl_Click() { API_Shell::OpenWithExplorer(HomeAddress(plan_.folder)); }

}  // namespace ui
