#include "ComposerCost.h"

#include <windows.h>

#include <memory>
#include <stdexcept>

#include "BareAccessible.h"
#include "BareWindows.h"
#include "Turns.h"
#include "accessible/FixtureProcess.h"
#include "capture/ReportComposer.h"
#include "report/SystemReaders.h"
#include "unit/FakeCapture.h"

namespace bench {
namespace {

constexpr int kRounds = 31;
constexpr LONG kManyChildren = 1000;

void Ask(HWND target, POINT point) {
  AskWindow(target);
  AskTextAtPoint(point);
  AskChildListing(target);
  AskInformation(target);
  AskAccessibleReport(point);
  AskForStatusBars(target);
}

}  // namespace

std::vector<Pair> MeasureReport() {
  const Apartment apartment;
  const accessible::FixtureProcess fixture("deadline=3600 fruit");
  const POINT point = fixture.Control().Center();
  FakeCapture capture;
  capture.settings.parentChildren = 1;
  capture.settings.parentChildrenMax = kManyChildren;
  capture.settings.accnameMax = 50;
  capture.state.TargetWindow = fixture.Control().Handle();
  capture.state.CapturePoint = point;
  capture.state.CaptureRunning = true;
  capture.system.onPump = PumpMessages;
  const std::unique_ptr<report::ReportReaders> readers =
      report::MakeSystemReaders(capture.settings);
  return Compare(
      kRounds,
      [&] {
        capture::ComposeReport(capture.Context(), *readers);
        if (capture.state.TopTexts[1].empty() || capture.state.BottomTexts[2].empty()) {
          throw std::runtime_error("little was read from the accessible fixture");
        }
      },
      [&] { Ask(capture.state.TargetWindow, point); });
}

}  // namespace bench
