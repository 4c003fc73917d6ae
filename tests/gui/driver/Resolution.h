// The screen's resolution in dots per inch, as programs see it that start from now on.
#pragma once

#include <windows.h>

namespace gui {

// Sets the resolution as long as it exists; afterwards it is 96 again.
class Resolution {
 public:
  explicit Resolution(DWORD dpi);
  ~Resolution();
  Resolution(const Resolution&) = delete;
  Resolution& operator=(const Resolution&) = delete;
};

// Restores the resolution after a test that could not end properly.
void RestoreResolution();

}  // namespace gui
