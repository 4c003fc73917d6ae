// Puts texts on the clipboard and says in lblMsg whether that succeeded.
#pragma once

#include <string>

#include "capture/CaptureContext.h"

namespace capture {

void CopyTopPane(const CaptureContext& context);
void CopyBottomPane(const CaptureContext& context);

// done is what lblMsg shows once text is on the clipboard.
void CopyText(const CaptureContext& context, const std::wstring& text, const wchar_t* done);

}  // namespace capture
