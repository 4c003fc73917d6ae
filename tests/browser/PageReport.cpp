#include "PageReport.h"

#include <objbase.h>

#include <chrono>

#include "bed/Needs.h"
#include "capture/ReportComposer.h"
#include "driver/Pointer.h"
#include "driver/WaitFor.h"
#include "report/SystemReaders.h"

namespace html {

PageReport::PageReport()
    : before_(platform::SetMessageBox([this](const std::wstring& text, const std::wstring& title) {
        boxes_.push_back(title + L"|" + text);
      })) {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  settings_.htmlTagTextLength = 50;
  settings_.accValueText = L"edit,DirectUIHWND";
  readers_ = report::MakeSystemReaders(settings_);
}

PageReport::~PageReport() {
  readers_.reset();
  CoUninitialize();
  platform::SetMessageBox(before_);
}

void PageReport::SetUp() { NEEDS(bed::ThePointer()); }

void PageReport::TearDown() {
  if (!IsSkipped()) gui::pointer::Park();
}

void PageReport::ReportAt(const BrowserProcess& browser, POINT point, POINT shift) {
  const POINT pointer = {kOrigin.x + point.x, kOrigin.y + point.y};
  const POINT read = {pointer.x + shift.x, pointer.y + shift.y};
  gui::pointer::MoveTo(pointer);
  HWND target = WindowFromPoint(read);
  capture_.state.CapturePoint = read;
  capture_.state.TargetWindow = target;
  capture_.state.CaptureRunning = true;
  capture_.system.parents[target] = GetAncestor(target, GA_PARENT);
  capture_.view.texts.clear();

  const auto start = std::chrono::steady_clock::now();
  capture::ComposeReport(capture_.Context(), *readers_);
  const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
  milliseconds_ = time.count();
  if (browser.IsRunning() && browser.References() >= 0) {
    EXPECT_TRUE(IsReleased(browser));
  }
}

std::size_t PageReport::Rows() const {
  constexpr wchar_t kHead[] = TABLE_HEAD;
  const std::size_t head = Table().find(kHead);
  std::size_t rows = 0;
  if (head == std::wstring::npos) return rows;
  for (std::size_t at = Table().find(L"\r\n", head + std::size(kHead) - 1);
       at != std::wstring::npos; at = Table().find(L"\r\n", at + 2)) {
    ++rows;
  }
  return rows;
}

testing::AssertionResult IsReleased(const BrowserProcess& browser) {
  return gui::WaitFor("the page's objects are released", [&](std::string& seen) {
    seen = std::to_string(browser.References());
    return seen == "0";
  });
}

}  // namespace html
