// The strip that the user drags to share the height between the panes. It only reports the mouse to
// its parent.
#pragma once

#include <windows.h>

namespace ui {

constexpr const wchar_t* kSplitterClass = L"VelmoraSplitter";

// Sent to the parent: wParam a SplitterEvent, lParam the pointer's y in the grip, in pixels.
constexpr UINT kSplitterMessage = WM_APP + 1;

enum SplitterEvent : WPARAM {
  kSplitterPress,
  kSplitterMove,
  kSplitterRelease,
  kSplitterCancel,  // another window took the mouse during a drag
};

void RegisterSplitterClass();

}  // namespace ui
