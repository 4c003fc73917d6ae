#include "ui/frmQuorvinFromPoint.h"

#include <utility>

#include "capture/CaptureLoop.h"
#include "capture/CaptureWords.h"
#include "capture/IdleKeys.h"
#include "capture/PointerSampling.h"
#include "capture/ReportComposer.h"
#include "extract/Win32API_Window.h"
#include "platform/MessagePump.h"
#include "report/SystemReaders.h"
#include "ui/ControlIds.h"
#include "ui/HelpLinks.h"
#include "ui/ProgramVersion.h"
#include "ui/SplitterGrip.h"

namespace ui {
namespace {

using capture::CaptureTimer;
using capture::ViewText;

constexpr const wchar_t* kClassName = L"frmQuorvinFromPoint";
constexpr std::wstring_view kCaption = L"Velmora列取得";

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
  plan.background = GetSysColorBrush(COLOR_BTNFACE);
  if (!Create(plan)) return false;
  platform::AddDialog(Handle());
  system_ = capture::MakeCaptureSystem(Handle());
  readers_ = report::MakeSystemReaders(settings_);
  Form_Load();
  return true;
}

capture::CaptureContext frmQuorvinFromPoint::Context() {
  return {state_, settings_, view_, *system_};
}

void frmQuorvinFromPoint::RunCapture() {
  const capture::CaptureContext context = Context();
  capture::RunCapture(
      context, [&] { capture::ComposeReport(context, *readers_); }, plan_.commandLine);
}

void frmQuorvinFromPoint::Form_Load() {
  ShowVersion();
  TakeTwipsPerPixel();
  PrepareLabels();
  LoadConfig();
  ApplyDisplaySettings();
  capture::ShowStopHint(Context());
  state_.ActionKeyCode = std::to_wstring(VK_CONTROL);
  view_.EnableTimer(CaptureTimer::Timer_MsgLoop, true);
  if (capture::StartsByItself(settings_, plan_.commandLine)) {
    view_.EnableTimer(CaptureTimer::Timer_Go, true);
  }
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
      // Rounded up: the height in twips must not be below the least one.
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
      RunCapture();
      break;
    case CaptureTimer::Timer_End:
      Timer_End_Timer();
      break;
  }
}

void frmQuorvinFromPoint::OnDpiChanged(UINT dpi, const RECT& suggested) {
  face_.ApplyDpi(dpi);
  // While the saved placement is applied, the window keeps that place.
  if (face_.IsLayoutHeld()) return;
  SetWindowPos(Handle(), nullptr, suggested.left, suggested.top, suggested.right - suggested.left,
               suggested.bottom - suggested.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

void frmQuorvinFromPoint::SaveConfig() {
  settings::SaveConfig(settings::ConfigPath(plan_.folder), config_, settings_);
}

void frmQuorvinFromPoint::Form_Unload() {
  if (state_.CaptureRunning) {
    // Without saving. Odd, and stays: docs/ODDITIES.md.
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
