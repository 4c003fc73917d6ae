// How the readers of items reach a control: by messages, and by memory of its process.
#pragma once

#include <windows.h>

#include <cstdint>
#include <exception>

#include "extract/MemoryCalls.h"

namespace extract {

// A control or its process is gone.
class TargetLost : public std::exception {};

class ControlMessages {
 public:
  ControlMessages() = default;
  ControlMessages(const ControlMessages&) = delete;
  ControlMessages& operator=(const ControlMessages&) = delete;
  virtual ~ControlMessages() = default;

  // Waits as long as the window takes. Controls answer in 32 bits, so -1 comes as -1 whatever the
  // bitness of the other side. Throws TargetLost when there is no such window.
  virtual std::int32_t Send(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

  // The process of the window; 0 when there is no such window.
  virtual DWORD ProcessOf(HWND hwnd);

  // The window's style bits; 0 when there is no such window.
  virtual DWORD StyleOf(HWND hwnd);
};

struct ControlAccess {
  ControlMessages& messages;
  MyMapView::MemoryCalls& memory;
};

// The one that reaches the real controls.
const ControlAccess& SystemAccess();

}  // namespace extract
