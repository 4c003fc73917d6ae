// The readers of a report, as they read real windows.
#pragma once

#include <memory>

#include "capture/ReportReaders.h"

namespace capture {

std::unique_ptr<ReportReaders> MakeSystemReaders(const settings::Settings& settings);

}  // namespace capture
