#include "ui/frmQuorvinFromPoint.h"

#include <commctrl.h>

#include <utility>

#include "capture/CaptureWords.h"
#include "capture/IdleKeys.h"
#include "capture/OutputDelivery.h"
#include "capture/PointerSampling.h"
#include "capture/ReportComposer.h"
#include "capture/SystemReaders.h"
#include "extract/StringUtilities.h"
#include "extract/Win32API_Window.h"
#include "platform/API_Shell.h"
#include "platform/MessagePump.h"
#include "ui/AppIcon.h"
#include "ui/ControlIds.h"
#include "ui/EditBehaviour.h"
#include "ui/HelpLinks.h"
#include "ui/ProgramVersion.h"
#include "ui/SplitterGrip.h"

namespace ui {
namespace {

using capture::CaptureTimer;
using capture::ViewText;

constexpr const wchar_t* kClassName = L"frmQuorvinFromPoint";
constexpr std::wstring_view kCaption = L"Velmora列取得";
constexpr std::wstring_view kDebugMark = L" - debug";

}  // namespace

frmQuorvinFromPoint::frmQuorvinFromPoint(settings::Settings& settings, capture::CaptureState& state,
                                         MainWindowPlan plan)
    : settings_(settings),
      state_(state),
      plan_(std::move(plan)),
      face_(settings, state),
      view_(face_, settings),
      config_(face_),
      setting_(settings, state, [this] { ApplyDisplaySettings(); }) {}

frmQuorvinFromPoint::~frmQuorvinFromPoint() { platform::RemoveDialog(Handle()); }

bool frmQuorvinFromPoint::Load() {
  WindowPlan plan{kClassName};
  plan.style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
  plan.exStyle = WS_EX_CONTROLPARENT;
  plan.icon = AppIcon(SM_CXICON, SM_CYICON);
  plan.smallIcon = AppIcon(SM_CXSMICON, SM_CYSMICON);
  plan.background = GetSysColorBrush(COLOR_BTNFACE);
  if (!Create(plan)) return false;
  platform::AddDialog(Handle());
  system_ = capture::MakeCaptureSystem(Handle());
  readers_ = capture::MakeSystemReaders(settings_);
  loop_ = std::make_unique<capture::CaptureLoop>(
      Context(), [this] { capture::ComposeReport(Context(), *readers_); }, plan_.commandLine);
  Form_Load(*this, settings_, plan_.commandLine);
  return true;
}

capture::CaptureContext frmQuorvinFromPoint::Context() {
  return {state_, settings_, view_, *system_};
}

void frmQuorvinFromPoint::ShowVersion() {
  state_.VersionText = ProgramVersionText();
  SetWindowTextW(Handle(), (std::wstring(kCaption) + L" " + state_.VersionText).c_str());
}

void frmQuorvinFromPoint::TakeTwipsPerPixel() {
  face_.HoldLayout(true);
  face_.Create(Handle());
}

void frmQuorvinFromPoint::PrepareLabels() {
  view_.SetVisible(ViewText::lblStatus, false);
  view_.SetGoButton(L"開始", L"Velmora列取得開始");
  face_.Tips().Set(face_.Control(cmdSetting), L"設定画面を開きます");
  face_.Tips().Set(face_.Control(chkAutoStop), L"マウスの動きが止まってから指定秒後に自動停止");
  face_.Tips().Set(face_.Control(chkTurnBack), L"長い行を折り返して表示");
  face_.Tips().Set(face_.Control(chkDetail), L"詳細情報を表示");
  face_.Tips().Set(face_.Control(txthWnd),
                   L"ウィンドウハンドル  ダブルクリックで10進/16進を切り替え");
  face_.Tips().Set(face_.Control(Help_Url), HelpAddress(plan_.folder));
  face_.Tips().Set(face_.Control(MyUrl), HomeAddress(plan_.folder));
}

void frmQuorvinFromPoint::LoadConfig() {
  settings::LoadConfig(settings::ConfigPath(plan_.folder), config_, settings_);
}

void frmQuorvinFromPoint::ApplyDisplaySettings() {
  if (settings_.dispTop == 1) {
    Win32API_Window::SetTopMost(Handle());
  } else {
    Win32API_Window::SetNoTopMost(Handle());
  }
  ShowMousePosTip();
}

void frmQuorvinFromPoint::ShowStopHint() { capture::ShowStopHint(Context()); }

void frmQuorvinFromPoint::SetActionKey() { state_.ActionKeyCode = std::to_wstring(VK_CONTROL); }

void frmQuorvinFromPoint::StartIdlePolling() {
  view_.EnableTimer(CaptureTimer::Timer_MsgLoop, true);
}

void frmQuorvinFromPoint::StartCaptureSoon() { view_.EnableTimer(CaptureTimer::Timer_Go, true); }

LRESULT frmQuorvinFromPoint::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      return OnCommand(LOWORD(wParam), HIWORD(wParam));
    case WM_NOTIFY:
      return OnNotify(*reinterpret_cast<const NMHDR*>(lParam));
    case WM_TIMER:
      OnTimer(static_cast<CaptureTimer>(wParam - 1));
      return 0;
    case WM_SIZE:
      face_.Form_Resize();
      return 0;
    case WM_GETMINMAXINFO: {
      const TwipsScale& scale = face_.Scale();
      // Rounded up: the height in twips must not come out below the least.
      const LONG least = (kMinOuterHeight + scale.TwipsPerPixelY - 1) / scale.TwipsPerPixelY;
      reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {0, least};
      return 0;
    }
    case WM_DPICHANGED:
      OnDpiChanged(LOWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
      return 0;
    case WM_ACTIVATE:
      focus_.OnActivate(Handle(), LOWORD(wParam) != WA_INACTIVE, face_.Control(cmdGo));
      return 0;
    case WM_CTLCOLORSTATIC:
      return reinterpret_cast<LRESULT>(
          face_.PaintLabel(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam)));
    case DM_GETDEFID:
      return DefaultButton();
    case kSplitterMessage:
      OnSplitter(wParam, static_cast<int>(lParam));
      return 0;
    case WM_CLOSE:
      Form_Unload();
      return 0;
    case WM_ENDSESSION:
      if (wParam != FALSE) Form_Unload();
      return 0;
    default:
      return Default(message, wParam, lParam);
  }
}

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
  system_->PutOnClipboard(WindowText(face_.Control(id)));
  view_.SetText(ViewText::lblMsg, L"テキスト転送完了！");
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

void frmQuorvinFromPoint::OnTimer(CaptureTimer timer) {
  switch (timer) {
    case CaptureTimer::Timer_MsgLoop:
      capture::PollIdleKeys(Context());
      break;
    case CaptureTimer::Timer2:
      capture::SamplePointer(Context());
      break;
    case CaptureTimer::Timer_Go:
      view_.EnableTimer(CaptureTimer::Timer_Go, false);
      loop_->RunCapture();
      break;
    case CaptureTimer::Timer_End:
      Timer_End_Timer();
      break;
  }
}

void frmQuorvinFromPoint::OnDpiChanged(UINT dpi, const RECT& suggested) {
  face_.ApplyDpi(dpi);
  // While the saved placement is being applied the window stays where that puts it.
  if (face_.IsLayoutHeld()) return;
  SetWindowPos(Handle(), nullptr, suggested.left, suggested.top, suggested.right - suggested.left,
               suggested.bottom - suggested.top, SWP_NOZORDER | SWP_NOACTIVATE);
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
    loop_->RunCapture();
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
  capture::RedisplayPanes(state_, settings_, view_);
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
  view_.SetText(ViewText::txthWnd, capture::ShownHandle(handle, settings_.winHandle));
}

void frmQuorvinFromPoint::Help_Url_Click() {
  API_Shell::OpenWithExplorer(HelpAddress(plan_.folder));
}

void frmQuorvinFromPoint::MyUrl_Click() { API_Shell::OpenWithExplorer(HomeAddress(plan_.folder)); }

void frmQuorvinFromPoint::SaveConfig() {
  settings::SaveConfig(settings::ConfigPath(plan_.folder), config_, settings_);
}

void frmQuorvinFromPoint::Form_Unload() {
  if (state_.CaptureRunning) {
    // Deliberately without saving: what was changed during a capture that is cut off is a try.
    state_.CaptureRunning = false;
    state_.RunState = capture::kUnload;
  } else {
    SaveConfig();
    view_.EnableTimer(CaptureTimer::Timer_End, true);
  }
  plan_.endProgram();
}

void frmQuorvinFromPoint::Timer_End_Timer() {
  view_.EnableTimer(CaptureTimer::Timer_End, false);
  SaveConfig();
  plan_.endProgram();
}

}  // namespace ui
