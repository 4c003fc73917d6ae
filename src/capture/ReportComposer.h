// Makes one report: reads the target window and fills the boxes, the text slots and the panes.
#pragma once

#include "capture/CaptureContext.h"

namespace capture {

// Reports on the target window. Every step that fails leaves what it would have filled empty, and
// the report goes on.
void ComposeReport(const CaptureContext& context);

}  // namespace capture
