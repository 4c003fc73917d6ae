// The readers of a report, for real windows.
#pragma once

#include <memory>

#include "report/ReportReaders.h"

namespace report {

std::unique_ptr<ReportReaders> MakeSystemReaders(const settings::Settings& settings);

}  // namespace report
