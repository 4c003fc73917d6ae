// Puts a pane's text on the clipboard and says so in lblMsg.
#pragma once

#include "capture/CaptureContext.h"

namespace capture {

void CopyTopPane(const CaptureContext& context);
void CopyBottomPane(const CaptureContext& context);

}  // namespace capture
