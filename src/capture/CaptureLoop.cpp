#include "capture/CaptureLoop.h"

#include <utility>

#include "capture/AutoStopCountdown.h"
#include "capture/CaptureWords.h"
#include "capture/PaneCopy.h"
#include "capture/StopKey.h"
#include "capture/TooltipHint.h"
#include "settings/ConfigText.h"
#include "settings/MyKeyboard.h"

namespace capture {
namespace {

constexpr std::uint32_t kPassMs = 10;
constexpr std::uint32_t kMarkerMs = 1000;
constexpr std::uint32_t kActionMs = 1000;

// After the chime the user gets a moment to see the last text, and the sound one to fade.
constexpr std::uint32_t kBeforeHidingMs = 1000;
constexpr std::uint32_t kAfterHidingMs = 2000;

constexpr std::wstring_view kCapturing = L"取得中・・・・";

std::int32_t ActionKey(const CaptureState& state) {
  return settings::LeadingNumber(state.ActionKeyCode);
}

}  // namespace

void ShowStopHint(const CaptureContext& context) {
  const auto& [state, settings, view, system] = context;
  view.SetText(ViewText::lblStatus, StopHint(settings.hotkey, settings.actionTest,
                                             MyKeyboard::KeyName(ActionKey(state))));
}

CaptureLoop::CaptureLoop(CaptureContext context, std::function<void()> compose,
                         std::wstring commandLine)
    : context_(context), compose_(std::move(compose)), commandLine_(std::move(commandLine)) {}

void CaptureLoop::RunCapture() {
  if (!context_.state.RunState.empty()) return;
  Start();
  Locals locals;
  do {
    Pass(locals);
  } while (context_.state.RunState == kGo && context_.state.CaptureRunning);
  End();
}

void CaptureLoop::Start() {
  auto& [state, settings, view, system] = context_;
  if (AsksForDebugMode(commandLine_)) state.DebugMode = true;
  Attempt([&] { view.SetGoButton(L"停止", L"取得停止"); });
  Attempt([&] { view.SetVisible(ViewText::lblStatus, true); });
  Attempt([&] { view.FocusTopPane(); });
  Attempt([&] { view.EnableTimer(CaptureTimer::Timer_MsgLoop, false); });
  Attempt([&] { view.EnableTimer(CaptureTimer::Timer2, true); });
  state.CaptureRunning = true;
  state.RunState = kGo;
  Attempt([&] { state.TargetWindow = view.GoButton(); });
  Attempt([&] { state.CaptureStartTick = system.TickCount(); });
  state.LastReportTick = state.CaptureStartTick;
  Attempt([&] { view.SetText(ViewText::lblMsg, L"Go"); });
  Attempt([&] { view.ShowMarkers(); });
}

void CaptureLoop::Pass(Locals& locals) {
  auto& [state, settings, view, system] = context_;
  Attempt([&] { RewriteStopHint(); });
  UpdateMarkers(locals);
  TrackRest(locals);
  ReportIfDue();
  Attempt([&] { ShowTooltipHint(locals); });
  Attempt([&] { system.Sleep(kPassMs); });
  Attempt([&] { system.Pump(); });
  CountDown(locals);
  Attempt([&] {
    locals.nowTick = system.TickCount();
    locals.rest.EndPass(*locals.nowTick);
  });
  Attempt([&] { PollStopKey(context_); });
  Attempt([&] { PollActionKey(locals); });
  Attempt([&] { system.Pump(); });
}

void CaptureLoop::RewriteStopHint() {
  const auto& [state, settings, view, system] = context_;
  if (state.DebugMode) return;
  if (settings.continueCapture == 1) {
    view.SetText(ViewText::lblStatus, {});
  } else if (!settings.hotkey.empty()) {
    ShowStopHint(context_);
  }
}

void CaptureLoop::UpdateMarkers(Locals& locals) {
  const auto& [state, settings, view, system] = context_;
  if (settings.shift == 1) Attempt([&] { view.PlaceMarkers(state.CapturePoint); });
  // Also while "shift" is 0: this is what hides the markers after it was switched off.
  const std::uint32_t now = locals.nowTick.value_or(0);
  if (now - locals.lastMarkerTick <= kMarkerMs) return;
  Attempt([&] { view.ShowMarkers(); });
  locals.lastMarkerTick = now;
}

void CaptureLoop::TrackRest(Locals& locals) {
  CaptureState& state = context_.state;
  state.ReportState = locals.rest.Observe(state.CapturePoint, locals.nowTick, state.LastReportTick,
                                          state.ReportState);
  if (state.RefreshRequest == 1) {
    state.ReportState = kDue;
    state.RefreshRequest = 0;
  }
}

bool CaptureLoop::TargetIsOwnWindow() {
  const auto& [state, settings, view, system] = context_;
  const HWND main = view.MainWindow();
  const HWND target = state.TargetWindow;
  return target == main || system.Parent(target) == main || system.TopParent(target) == main;
}

void CaptureLoop::ClearReport() {
  for (const ViewText part :
       {ViewText::txthWnd, ViewText::txtWin0, ViewText::txtWin1, ViewText::txtWin2,
        ViewText::txtCount, ViewText::TopPane, ViewText::BottomPane}) {
    Attempt([&] { context_.view.SetText(part, {}); });
  }
}

void CaptureLoop::ReportIfDue() {
  auto& [state, settings, view, system] = context_;
  if (state.ReportState != kDue) return;
  bool own = false;
  Attempt([&] { own = TargetIsOwnWindow(); });
  if (own) {
    ClearReport();
  } else {
    Attempt([&] { view.SetText(ViewText::lblMsg, std::wstring(kCapturing)); });
    Attempt([&] { system.Pump(); });
    Attempt([&] { state.LastReportTick = system.TickCount(); });
    Attempt([&] { compose_(); });
    Attempt([&] {
      if (view.Text(ViewText::lblMsg) == kCapturing) view.SetText(ViewText::lblMsg, {});
    });
  }
  state.ReportState = kReported;
}

void CaptureLoop::ShowTooltipHint(Locals& locals) {
  const auto& [state, settings, view, system] = context_;
  if (settings.hint != 1) return;
  const std::uint32_t now = locals.nowTick.value_or(0);
  if (!TooltipIsDue(locals.rest.StillMs(), now, locals.lastHintTick)) return;
  locals.lastHintTick = now;
  const std::wstring text = system.TooltipText();
  if (!text.empty()) view.SetText(ViewText::txtStatus, text);
}

void CaptureLoop::CountDown(const Locals& locals) {
  CaptureView& view = context_.view;
  const Countdown countdown = DecideCountdown(context_.settings, locals.rest.StillMs());
  switch (countdown.step) {
    case CountdownStep::Clear:
      Attempt([&] { view.SetText(ViewText::lblAutoStop, {}); });
      break;
    case CountdownStep::Keep:
      break;
    case CountdownStep::Show:
      Attempt([&] { view.SetText(ViewText::lblAutoStop, std::to_wstring(countdown.remaining)); });
      break;
    case CountdownStep::Stop:
      StopByItself();
      break;
  }
}

void CaptureLoop::StopByItself() {
  auto& [state, settings, view, system] = context_;
  Attempt([&] { view.SetText(ViewText::lblAutoStop, {}); });
  Attempt([&] { system.Pump(); });
  if (settings.chime == 1) Attempt([&] { system.PlayChime(settings.chimeFile); });
  state.CaptureRunning = false;
  if (settings.autoClose != 1) return;
  state.RunState = kUnload;
  Attempt([&] { system.Sleep(kBeforeHidingMs); });
  Attempt([&] { view.HideMainWindow(); });
  Attempt([&] { system.Sleep(kAfterHidingMs); });
}

void CaptureLoop::PollActionKey(Locals& locals) {
  const auto& [state, settings, view, system] = context_;
  if (settings.actionTest < 1 || !system.IsKeyDown(ActionKey(state))) return;
  if (system.TickCount() - locals.lastActionTick <= kActionMs) return;
  Attempt([&] { system.AccAction(settings.actionTest, state.CapturePoint); });
  // From its end: the message box of an action may stay open for long.
  locals.lastActionTick = system.TickCount();
}

void CaptureLoop::End() {
  auto& [state, settings, view, system] = context_;
  Attempt([&] {
    switch (settings.clipboard) {
      case 0:
        view.SetText(ViewText::lblMsg, L"テキスト選択");
        break;
      case 1:
        view.SetText(ViewText::lblMsg, L"クリックでクリップボード転送");
        break;
      case 2:
        CopyTopPane(context_);
        break;
      case 3:
        CopyBottomPane(context_);
        break;
      default:
        break;
    }
  });
  state.CaptureRunning = false;
  Attempt([&] { view.SetGoButton(L"開始", L"Velmora列取得開始"); });
  Attempt([&] { view.UnloadMarkers(); });
  Attempt([&] { view.SetVisible(ViewText::lblStatus, false); });
  Attempt([&] { view.EnableTimer(CaptureTimer::Timer_MsgLoop, true); });
  // Timer2 may still tick in here and then finds no capture, which clears the target window.
  Attempt([&] { system.Pump(); });
  Attempt([&] { view.EnableTimer(CaptureTimer::Timer2, false); });
  if (state.RunState == kUnload) {
    Attempt([&] { view.EnableTimer(CaptureTimer::Timer_End, true); });
  }
  state.RunState.clear();
  Attempt([&] { ShowStopHint(context_); });
}

}  // namespace capture
