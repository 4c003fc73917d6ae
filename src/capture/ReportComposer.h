// Makes one report: reads the target window and fills the boxes, the text slots and the panes.
#pragma once

#include <string>
#include <string_view>

#include "capture/CaptureContext.h"
#include "report/ReportReaders.h"

namespace capture {

// text with every lone LF turned into CR LF. A character 0x01 in it becomes CR LF too.
std::wstring WithLineEnds(std::wstring_view text);

// Reports on the target window. A step that fails leaves what it would have filled empty, and the
// report goes on.
void ComposeReport(const CaptureContext& context, report::ReportReaders& readers);

}  // namespace capture
