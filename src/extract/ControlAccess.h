// How the readers of items reach a control: by messages, and through memory of its process.
#pragma once

#include <windows.h>

#include <cstdint>
#include <exception>

#include "extract/MemoryCalls.h"
#include "platform/Interface.h"

namespace extract {

// A control or its process is gone.
class TargetLost : public std::exception {};

class ControlMessages : public platform::Interface {
 public:
  // Waits until the window answers. Controls answer in 32 bits, so -1 arrives as -1 from a 64-bit
  // process too. Throws TargetLost when there is no such window.
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

// The access to real controls.
const ControlAccess& SystemAccess();

}  // namespace extract
