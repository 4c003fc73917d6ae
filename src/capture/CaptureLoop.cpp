#include "capture/CaptureLoop.h"

#include <optional>

#include "capture/AutoStopCountdown.h"
#include "capture/CaptureWords.h"
#include "capture/PaneCopy.h"
#include "capture/PointerSampling.h"
#include "capture/RestTracker.h"
#include "capture/StopKey.h"
#include "capture/TooltipHint.h"
#include "platform/NumberText.h"
#include "settings/MyKeyboard.h"

namespace capture {
namespace {

constexpr std::uint32_t kPassMs = 10;
constexpr std::uint32_t kMarkerMs = 1000;
constexpr std::uint32_t kActionMs = 1000;

// Time for the user to see the last text after the chime, and time for the sound to fade.
constexpr std::uint32_t kBeforeHidingMs = 1000;
constexpr std::uint32_t kAfterHidingMs = 2000;

std::int32_t ActionKey(const CaptureState& state) {
  return platform::LeadingNumber(state.ActionKeyCode);
}

// One capture from start to end; its members are the state of that capture.
class Capture {
 public:
  Capture(const CaptureContext& context, const std::function<void()>& compose,
          std::wstring_view commandLine)
      : context_(context), compose_(compose), commandLine_(commandLine) {}

  void Run() {
    Start();
    do {
      Pass();
    } while (state_.RunState == kGo && state_.CaptureRunning);
    End();
  }

 private:
  void Start() {
    if (AsksForDebugMode(commandLine_)) state_.DebugMode = true;
    Attempt([&] { view_.SetGoButton(L"停止", L"取得停止"); });
    Attempt([&] { view_.SetVisible(ViewText::lblStatus, true); });
    Attempt([&] { view_.FocusTopPane(); });
    Attempt([&] { view_.EnableTimer(CaptureTimer::Timer_MsgLoop, false); });
    Attempt([&] { view_.EnableTimer(CaptureTimer::Timer2, true); });
    state_.CaptureRunning = true;
    state_.RunState = kGo;
    state_.StopKeyKept = false;
    Attempt([&] { state_.TargetWindow = view_.GoButton(); });
    state_.GivenWindow = nullptr;
    Attempt([&] { state_.CaptureStartTick = system_.TickCount(); });
    state_.LastReportTick = state_.CaptureStartTick;
    Attempt([&] { view_.SetText(ViewText::lblMsg, L"Go"); });
    Attempt([&] { view_.ShowMarkers(); });
  }

  void Pass() {
    Attempt([&] { RewriteStopHint(); });
    UpdateMarkers();
    TrackRest();
    ReportIfDue();
    Attempt([&] { ShowTooltipHint(); });
    Attempt([&] { system_.Sleep(kPassMs); });
    Attempt([&] { system_.Pump(); });
    CountDown();
    Attempt([&] {
      nowTick_ = system_.TickCount();
      rest_.EndPass(*nowTick_);
    });
    Attempt([&] { PollStopKey(context_); });
    Attempt([&] { PollActionKey(); });
    Attempt([&] { system_.Pump(); });
  }

  void RewriteStopHint() const {
    if (state_.DebugMode) return;
    if (settings_.continueCapture == 1) {
      view_.SetText(ViewText::lblStatus, {});
    } else if (!settings_.hotkey.empty()) {
      ShowStopHint(context_);
    }
  }

  void UpdateMarkers() {
    if (settings_.shift == 1) Attempt([&] { view_.PlaceMarkers(state_.CapturePoint); });
    // Also while "shift" is 0, which hides the markers after it was switched off.
    const std::uint32_t now = nowTick_.value_or(0);
    if (now - lastMarkerTick_ <= kMarkerMs) return;
    Attempt([&] { view_.ShowMarkers(); });
    lastMarkerTick_ = now;
  }

  void TrackRest() {
    state_.ReportState =
        rest_.Observe(state_.CapturePoint, nowTick_, state_.LastReportTick, state_.ReportState);
    if (state_.RefreshRequest == 1) {
      state_.ReportState = kDue;
      state_.RefreshRequest = 0;
    }
  }

  bool TargetIsOwnWindow() const {
    const HWND main = view_.MainWindow();
    const HWND target = state_.TargetWindow;
    return target == main || system_.Parent(target) == main || system_.TopParent(target) == main;
  }

  void ClearReport() const {
    // All boxes but txtWin3. Odd, and stays: docs/ODDITIES.md.
    for (const ViewText part :
         {ViewText::txthWnd, ViewText::txtWin0, ViewText::txtWin1, ViewText::txtWin2,
          ViewText::txtCount, ViewText::lblListKind, ViewText::TopPane, ViewText::BottomPane}) {
      Attempt([&] { view_.SetText(part, {}); });
    }
  }

  void ReportIfDue() const {
    if (state_.ReportState != kDue) return;
    bool own = false;
    Attempt([&] { own = TargetIsOwnWindow(); });
    if (own) {
      ClearReport();
    } else {
      Attempt([&] { view_.SetText(ViewText::lblMsg, std::wstring(kCapturing)); });
      Attempt([&] { system_.Pump(); });
      Attempt([&] { state_.LastReportTick = system_.TickCount(); });
      Attempt([&] { compose_(); });
      Attempt([&] {
        if (view_.Text(ViewText::lblMsg) == kCapturing) view_.SetText(ViewText::lblMsg, {});
      });
    }
    state_.ReportState = kReported;
  }

  void ShowTooltipHint() {
    if (settings_.hint != 1) return;
    const std::uint32_t now = nowTick_.value_or(0);
    if (!TooltipIsDue(rest_.StillMs(), now, lastHintTick_)) return;
    lastHintTick_ = now;
    const std::wstring text = system_.TooltipText();
    if (!text.empty()) view_.SetText(ViewText::txtStatus, text);
  }

  void CountDown() const {
    const Countdown countdown = DecideCountdown(settings_, rest_.StillMs());
    switch (countdown.step) {
      case CountdownStep::Clear:
        Attempt([&] { view_.SetText(ViewText::lblAutoStop, {}); });
        break;
      case CountdownStep::Keep:
        break;
      case CountdownStep::Show:
        Attempt(
            [&] { view_.SetText(ViewText::lblAutoStop, std::to_wstring(countdown.remaining)); });
        break;
      case CountdownStep::Stop:
        StopByItself();
        break;
    }
  }

  void StopByItself() const {
    Attempt([&] { view_.SetText(ViewText::lblAutoStop, {}); });
    Attempt([&] { system_.Pump(); });
    if (settings_.chime == 1) Attempt([&] { system_.PlayChime(settings_.chimeFile); });
    state_.CaptureRunning = false;
    if (settings_.autoClose != 1) return;
    state_.RunState = kUnload;
    Attempt([&] { system_.Sleep(kBeforeHidingMs); });
    Attempt([&] { view_.HideMainWindow(); });
    Attempt([&] { system_.Sleep(kAfterHidingMs); });
  }

  void PollActionKey() {
    if (settings_.actionTest < 1 || !system_.IsKeyDown(ActionKey(state_))) return;
    if (system_.TickCount() - lastActionTick_ <= kActionMs) return;
    Attempt([&] { system_.AccAction(settings_.actionTest, PointToRead(state_)); });
    // Counted from the end of the action, because its message box may stay open for long.
    lastActionTick_ = system_.TickCount();
  }

  void End() {
    Attempt([&] {
      switch (settings_.clipboard) {
        case 0:
          view_.SetText(ViewText::lblMsg, L"テキスト選択");
          break;
        case 1:
          view_.SetText(ViewText::lblMsg, L"クリックでクリップボード転送");
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
    state_.CaptureRunning = false;
    Attempt([&] { view_.SetGoButton(L"開始", L"Velmora列取得開始"); });
    Attempt([&] { view_.UnloadMarkers(); });
    Attempt([&] { view_.SetVisible(ViewText::lblStatus, false); });
    Attempt([&] { view_.EnableTimer(CaptureTimer::Timer_MsgLoop, true); });
    // Timer2 may still tick here; it finds no capture running and clears the target window.
    Attempt([&] { system_.Pump(); });
    Attempt([&] { view_.EnableTimer(CaptureTimer::Timer2, false); });
    if (state_.RunState == kUnload) {
      Attempt([&] { view_.EnableTimer(CaptureTimer::Timer_End, true); });
    }
    state_.RunState.clear();
    Attempt([&] { ShowStopHint(context_); });
  }

  const CaptureContext& context_;
  CaptureState& state_ = context_.state;
  const settings::Settings& settings_ = context_.settings;
  CaptureView& view_ = context_.view;
  CaptureSystem& system_ = context_.system;
  const std::function<void()>& compose_;
  const std::wstring_view commandLine_;

  RestTracker rest_;
  std::optional<std::uint32_t> nowTick_;  // at the end of the previous pass
  std::uint32_t lastMarkerTick_ = 0;
  std::uint32_t lastHintTick_ = 0;
  std::uint32_t lastActionTick_ = 0;
};

}  // namespace

void ShowStopHint(const CaptureContext& context) {
  const settings::Settings& set = context.settings;
  context.view.SetText(
      ViewText::lblStatus,
      StopHint(set.hotkey, set.actionTest, MyKeyboard::KeyName(ActionKey(context.state))));
}

void RunCapture(const CaptureContext& context, const std::function<void()>& compose,
                std::wstring_view commandLine) {
  if (context.state.RunState.empty()) Capture(context, compose, commandLine).Run();
}

}  // namespace capture
