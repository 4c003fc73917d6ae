#include "Hands.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

#include "driver/Keys.h"
#include "driver/Paths.h"
#include "driver/Pointer.h"
#include "driver/Screen.h"
#include "driver/WaitFor.h"
#include "driver/Windows.h"
#include "settings/MySub_HotKey.h"
#include "ui/ControlIds.h"

namespace soak {
namespace {

constexpr gui::Milliseconds kKeyHold{150};
// Longer than the time after which a report is due.
constexpr gui::Milliseconds kToBeSeen{60};
constexpr gui::Milliseconds kPatience{15000};
constexpr UINT kToAnswer = 20000;
constexpr UINT kToAnswerOverAHungProgram = 3000;
constexpr UINT kInItsOwnTime = SWP_NOZORDER | SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS;
constexpr Place kLongNamePlace{40, 40, 400, 300};
constexpr TargetKind kLongName{"long name", Source::kAccessible, "huge", false};
constexpr std::size_t kLong = 1'000'000;  // characters
constexpr char kMenu[] = "#32768";
constexpr char kSettings[] = "frmSetting";
constexpr char kHotKeys[] = "frmOption";

POINT PointOf(const Action& action) { return {action.a, action.b}; }

// Whether the window answered.
bool Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0, UINT time = kToAnswer) {
  DWORD_PTR answer = 0;
  return SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, time, &answer) != 0;
}

HWND ControlOf(const gui::Control& window, int id) {
  for (HWND control : gui::Descendants(window.Handle())) {
    if (GetDlgCtrlID(control) == id) return control;
  }
  throw std::runtime_error("there is no control " + std::to_string(id));
}

void Press(const gui::Control& window, int id) {
  gui::Control(ControlOf(window, id), "").PressButton();
}

// As if the entry had been clicked.
void Choose(const gui::Control& dialog, int id, int entry) {
  const HWND list = ControlOf(dialog, id);
  Ask(list, CB_SETCURSEL, static_cast<WPARAM>(entry));
  Ask(GetParent(list), WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
}

}  // namespace

Hands::Hands(const gui::Program& program)
    : program_(program),
      keyCatcher_("deadline=86400 title=keys place=860,700,300,240 blank=既知") {}

void Hands::Do(const Action& action) {
  switch (action.what) {
    case Do::kMove:
      gui::pointer::MoveTo(PointOf(action));
      gui::Last(kToBeSeen);
      return;
    case Do::kSweep:
      return gui::pointer::MoveTo(PointOf(action));
    case Do::kRest:
      return gui::Last(gui::Milliseconds(action.a));
    case Do::kOpen:
    case Do::kClose:
    case Do::kKill:
    case Do::kHang:
    case Do::kWake:
      return DoWithTarget(action);
    case Do::kGo:
    case Do::kPress:
    case Do::kClick:
    case Do::kDoubleClick:
    case Do::kDragSplitter:
    case Do::kResize:
      return DoInMainWindow(action);
    case Do::kHotKey:
    case Do::kFront:
    case Do::kSelectAll:
    case Do::kActionKey:
      return DoWithKeys(action);
    default:
      return DoInDialog(action);
  }
}

void Hands::DoWithTarget(const Action& action) {
  std::unique_ptr<Target>& target = targets_[action.a];
  switch (action.what) {
    case Do::kOpen:
      target = std::make_unique<Target>(TargetKinds()[static_cast<std::size_t>(action.b)],
                                        PlaceOnDesktop(action.a));
      break;
    case Do::kClose:
      if (!target->IsWell()) throw std::runtime_error(target->Name() + " does not run or answer");
      target->Close();
      target.reset();
      break;
    case Do::kKill:
      target->Kill();
      target.reset();
      break;
    case Do::kHang:
      target->Hang();
      break;
    default:
      target->Wake();
      break;
  }
}

void Hands::DoInMainWindow(const Action& action) {
  switch (action.what) {
    case Do::kGo:
      if (!program_.IsCapturing()) program_[ui::cmdGo].PressButton();
      break;
    case Do::kPress:
      program_[action.a].PressButton();
      break;
    case Do::kClick:
    case Do::kDoubleClick: {
      // Under a dialog or outside a small window there is nothing to click.
      const gui::Control control = program_[action.a];
      if (WindowFromPoint(control.Center()) != control.Handle()) break;
      const bool twice = action.what == Do::kDoubleClick;
      (twice ? gui::pointer::DoubleClick : gui::pointer::Click)(control.Center());
      break;
    }
    case Do::kDragSplitter: {
      const POINT from = program_[ui::imgSplitter].Center();
      if (WindowFromPoint(from) != program_[ui::imgSplitter].Handle()) break;
      gui::pointer::Drag(from, {from.x, std::max(0L, from.y + action.a)});
      break;
    }
    default:
      SetWindowPos(program_.Window().Handle(), nullptr, kMainWindow.left, kMainWindow.top, action.a,
                   action.b, kInItsOwnTime);
      break;
  }
}

void Hands::DoWithKeys(const Action& action) {
  const HWND receiver =
      action.what == Do::kSelectAll ? program_.Window().Handle() : keyCatcher_["main"].Handle();
  if (Ask(receiver, WM_NULL)) SetForegroundWindow(receiver);
  switch (action.what) {
    case Do::kHotKey: {
      const std::int32_t code = MySub_HotKey::HotKeyCodes[static_cast<std::size_t>(action.a)];
      const WORD key = LOWORD(code);
      if (key == 0) break;
      if ((code & MySub_HotKey::kShift) != 0) {
        gui::keys::Stroke({VK_SHIFT, key}, kKeyHold);
      } else {
        gui::keys::Stroke({key}, kKeyHold);
      }
      break;
    }
    case Do::kFront:
      gui::keys::Stroke({VK_MENU, 'T'}, kKeyHold);
      break;
    case Do::kSelectAll:
      gui::keys::Stroke({VK_CONTROL, 'A'}, kKeyHold);
      break;
    default:
      gui::keys::Stroke({VK_CONTROL}, kKeyHold);
      break;
  }
}

void Hands::DoInDialog(const Action& action) {
  switch (action.what) {
    case Do::kOpenSettings:
      return OpenDialog(program_.Window(), ui::cmdSetting, kSettings);
    case Do::kOpenHotKeys:
      return OpenDialog(Dialog(kSettings), ui::cmdHotKey, kHotKeys);
    case Do::kMoveSettings:
      SetWindowPos(Dialog(kSettings).Handle(), nullptr, action.a, action.b, 0, 0,
                   kInItsOwnTime | SWP_NOSIZE);
      break;
    case Do::kPressInSettings:
      return Press(Dialog(kSettings), action.a);
    case Do::kChooseInSettings:
      return Choose(Dialog(kSettings), action.a, action.b);
    case Do::kChooseHotKey:
      return Choose(Dialog(kHotKeys), ui::cmbHotKey, action.a);
    case Do::kTypeInSettings: {
      const gui::Control dialog = Dialog(kSettings);
      const HWND box = ControlOf(dialog, action.a);
      gui::Control(box, "box").SetText(std::to_string(action.b));
      Ask(dialog.Handle(), WM_COMMAND, MAKEWPARAM(action.a, EN_KILLFOCUS),
          reinterpret_cast<LPARAM>(box));
      break;
    }
    case Do::kCloseSettings:
      return CloseDialog(kSettings, ui::cmdClose);
    default:
      return CloseDialog(kHotKeys, action.a);
  }
}

std::optional<HWND> Hands::FindDialog(const char* className) const {
  for (HWND window : gui::VisibleWindows(program_.Process().Id())) {
    if (gui::Control(window, "").ClassName() == className) return window;
  }
  return std::nullopt;
}

gui::Control Hands::Dialog(const char* className) const {
  const std::optional<HWND> found = FindDialog(className);
  if (!found.has_value()) throw std::runtime_error(std::string(className) + " is not open");
  return {*found, className};
}

void Hands::OpenDialog(const gui::Control& from, int button, const char* className) {
  WaitUntil(
      std::string(className) + " opens", [&] { Press(from, button); },
      [&] { return FindDialog(className).has_value(); });
}

void Hands::CloseDialog(const char* className, int button) {
  const gui::Control dialog = Dialog(className);
  WaitUntil(
      std::string(className) + " closes", [&] { Press(dialog, button); },
      [&] { return !FindDialog(className).has_value(); });
}

// A message box in front of the window may take a press, so it is pressed again.
void Hands::WaitUntil(const std::string& what, const std::function<void()>& press,
                      const std::function<bool()>& done) {
  for (int tries = 0; tries < 4; ++tries) {
    press();
    const auto cameAbout = gui::WaitFor(
        what,
        [&](std::string&) {
          CloseMessages();
          return done();
        },
        kPatience);
    if (cameAbout) return;
  }
  // While the windows still stand.
  gui::SaveScreenshot(gui::TestName() + " waits");
  throw std::runtime_error("not so: " + what);
}

void Hands::RequireProgram() {
  const HWND window = program_.Window().Handle();
  if (Ask(window, WM_NULL, 0, 0, kToAnswerOverAHungProgram)) return;
  WakeAll();
  if (Ask(window, WM_NULL)) return;
  // While the windows still stand.
  gui::SaveScreenshot(gui::TestName() + " lost");
  const std::optional<DWORD> code = program_.Process().WaitForExit(gui::Milliseconds(1000));
  throw std::runtime_error(code.has_value()
                               ? "the program has ended with code " + std::to_string(*code)
                               : "the program does not answer");
}

std::string Hands::Unwell() const {
  std::string names;
  for (const std::unique_ptr<Target>& target : targets_) {
    if (target != nullptr && !target->IsWell()) names += target->Name() + "; ";
  }
  return names;
}

void Hands::WakeAll() {
  for (const std::unique_ptr<Target>& target : targets_) {
    if (target != nullptr) target->Wake();
  }
}

void Hands::StopCapture() {
  WaitUntil(
      "the capture stops",
      [&] {
        if (program_.IsCapturing()) program_[ui::cmdGo].PressButton();
      },
      [&] { return !program_.IsCapturing(); });
}

// Those that would read at another point, or end the capture too soon.
void Hands::UncheckAll() {
  const auto uncheck = [this](const gui::Control& window, std::initializer_list<int> boxes) {
    for (const int id : boxes) {
      const gui::Control box(ControlOf(window, id), "box");
      WaitUntil(
          "control " + std::to_string(id) + " is not checked",
          [&] {
            if (box.IsChecked()) box.PressButton();
          },
          [&] { return !box.IsChecked(); });
    }
  };
  uncheck(program_.Window(), {ui::chkDetail, ui::chkTurnBack, ui::chkAutoStop});
  OpenDialog(program_.Window(), ui::cmdSetting, kSettings);
  uncheck(Dialog(kSettings), {ui::chkShift, ui::chkContinue, ui::ChkAccFromhWnd});
  Press(Dialog(kSettings), ui::OptAct0);
  CloseDialog(kSettings, ui::cmdClose);
}

void Hands::ReadKnownWindow() {
  const gui::Control known = keyCatcher_["blank"];
  char hexadecimal[16] = {};
  std::snprintf(hexadecimal, sizeof hexadecimal, "%lX", std::stoul(known.HandleText()));
  program_[ui::cmdGo].PressButton();
  WaitUntil(
      "the known window is read", [&] { gui::pointer::MoveTo(known.Center()); },
      [&] {
        const std::string handle = program_[ui::txthWnd].Text();
        return (handle == known.HandleText() || handle == hexadecimal) &&
               program_[ui::txtWin0].Text() == known.ClassName() &&
               program_.TopPane().Text() == known.Text();
      });
}

void Hands::WarmUp() {
  StretchBoxes();
  ShowSystemMenu();
}

void Hands::ShowSystemMenu() {
  const HWND window = program_.Window().Handle();
  const auto isOpen = [this] { return FindDialog(kMenu).has_value(); };
  WaitUntil(
      "the menu opens", [&] { PostMessageW(window, WM_SYSCOMMAND, SC_KEYMENU, L' '); }, isOpen);
  WaitUntil(
      "the menu closes", [&] { PostMessageW(window, WM_CANCELMODE, 0, 0); },
      [&] { return !isOpen(); });
}

void Hands::StretchBoxes() {
  const Target target(kLongName, kLongNamePlace);
  Do({Do::kGo});
  WaitUntil(
      "the boxes show the long name",
      [] {
        gui::pointer::MoveTo({kLongNamePlace.left + 100, kLongNamePlace.top + 100});
      },
      [&] {
        return program_[ui::txtWin2].TextLength() >= kLong &&
               program_[ui::txtWin3].TextLength() >= kLong;
      });
}

void Hands::Settle() {
  gui::pointer::Park();
  StopCapture();
  UncheckAll();
  Do({Do::kResize, kMainWindow.width, kMainWindow.height});
  ReadKnownWindow();
  gui::pointer::Park();
  StopCapture();
}

void Hands::CloseAll() {
  for (std::unique_ptr<Target>& target : targets_) {
    if (target != nullptr) target->Close();
    target.reset();
  }
}

}  // namespace soak
