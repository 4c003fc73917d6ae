#include "capture/ReportComposer.h"

#include <string>

#include "capture/CaptureWords.h"
#include "capture/OutputDelivery.h"
#include "capture/WindowInformation.h"
#include "extract/StringUtilities.h"
#include "extract/Win32API_Window.h"

namespace capture {
namespace {

// Stands for CR LF while lone line feeds are replaced.
constexpr std::wstring_view kLineMark = L"\x01";

void ClearSlots(CaptureState& state) {
  for (std::wstring& text : state.TopTexts) text.clear();
  for (std::wstring& text : state.BottomTexts) text.clear();
}

}  // namespace

void ComposeReport(const CaptureContext& context) {
  auto& [state, settings, view, system] = context;
  // The pump lets the target change; this report stays with the window that it began with.
  const HWND target = state.TargetWindow;

  Attempt([&] { view.SetHandleTag(DecimalHandle(target)); });
  Attempt([&] { view.SetText(ViewText::txthWnd, ShownHandle(target, settings.winHandle)); });
  WindowInformation information;
  Attempt([&] { information = ReadWindowInformation(target); });
  Attempt([&] { view.SetText(ViewText::txtWin0, information.window.className); });
  ClearSlots(state);
  Attempt([&] { view.SetText(ViewText::txtCount, {}); });
  Attempt([&] { view.SetVisible(ViewText::txtCount, true); });

  std::wstring text;
  Attempt([&] { text = Win32API_Window::WindowTextByMessage(target); });
  Attempt([&] { view.SetText(ViewText::txtWin3, text); });
  state.TopTexts[2] = extract::WithCrLf(text, kLineMark);
  Attempt([&] { state.BottomTexts[1] = WindowInformationText(information, settings.winHandle); });
  Attempt([&] { view.SetText(ViewText::txtWin1, {}); });
  Attempt([&] { view.SetText(ViewText::txtWin2, information.window.title); });
  Attempt([&] { RedisplayPanes(state, settings, view); });
}

}  // namespace capture
