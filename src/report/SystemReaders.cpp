#include "report/SystemReaders.h"

#include "accessibility/AccessibleReport.h"
#include "accessibility/MyAccessible.h"
#include "browser/MyInternetexplore.h"
#include "browser/PageReading.h"
#include "extract/PointText.h"
#include "report/ElementTable.h"
#include "report/Elevation.h"
#include "report/StatusText.h"

namespace report {
namespace {

class SystemReaders : public ReportReaders {
 public:
  SystemReaders(const settings::Settings& settings, MyInternetexplore::BrowserCalls& calls)
      : settings_(settings), messages_(calls), browser_{calls, messages_, &description_} {}

  bool IsHung(HWND hwnd) override { return IsHungAppWindow(hwnd) != FALSE; }
  bool IsOutOfReach(HWND hwnd) override { return RunsAboveThisProgram(hwnd); }

  WindowFacts Facts(HWND hwnd) override {
    return IsHung(hwnd) ? ReadHungWindowFacts(hwnd) : ReadWindowFacts(hwnd);
  }
  WindowInformation Information(const WindowFacts& window) override {
    return ReadWindowInformation(window);
  }

  extract::TextReading TextFromPoint(
      const platform::ReadPoint& point,
      const std::function<void(const std::wstring&)>& showMessage) override {
    return extract::ReadTextAtPoint(point, settings_.accValueText, settings_.readWhole == 1,
                                    browser_, showMessage);
  }
  std::wstring NameOfWindow(HWND hwnd) override { return MyAccessible::AccNameOfWindow(hwnd); }

  extract::TextReading Control(Category category, const ControlRead& read) override {
    return ReadControl(category, read, settings_);
  }

  std::optional<MyInternetexplore::PageFacts> Page(const PageRead& read) override {
    return MyInternetexplore::ReadPage(
        {read.documentWindow, read.point, settings_.startNode,
         CharactersNeeded(settings_.htmlTagTextLength), read.showMessage, read.textsRead},
        browser_, read.session);
  }
  bool Answers(HWND hwnd) override { return messages_.Answers(hwnd); }

  AccessibleTexts Accessible(const WindowFacts* window, const platform::ReadPoint& point,
                             const platform::ReadSession& session) override {
    MyAccessible::ReportedWindow reported;
    if (window != nullptr) reported = {window->hwnd, window->className, window->title};
    MyAccessible::AccessibleFacts record;
    std::wstring report =
        MyAccessible::GetAccessibleMemberFromPoint(record, reported, point, settings_, session);
    return {std::move(report), record.name};
  }

  std::wstring StatusText(const WindowFacts& window) override { return FindStatusText(window); }

 private:
  const settings::Settings& settings_;
  MyInternetexplore::BoundedMessages messages_;
  MyInternetexplore::InterfaceDescription description_;
  const MyInternetexplore::BrowserAccess browser_;
};

}  // namespace

std::unique_ptr<ReportReaders> MakeSystemReaders(const settings::Settings& settings,
                                                 MyInternetexplore::BrowserCalls& calls) {
  return std::make_unique<SystemReaders>(settings, calls);
}

}  // namespace report
