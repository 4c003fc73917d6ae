// The readers of a report, for real windows.
#pragma once

#include <memory>

#include "browser/BrowserCalls.h"
#include "report/ReportReaders.h"

namespace report {

// settings and calls, by which pages are reached, must outlive them.
std::unique_ptr<ReportReaders> MakeSystemReaders(
    const settings::Settings& settings,
    MyInternetexplore::BrowserCalls& calls = MyInternetexplore::SystemBrowserCalls());

}  // namespace report
