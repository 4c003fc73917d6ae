// What a process holds of the system, for tests that look for what is left behind.
#pragma once

#include <windows.h>

#include <string>

namespace gui {

struct Holdings {
  int handles = 0;     // to kernel objects
  int gdiObjects = 0;  // fonts, brushes, bitmaps, device contexts and so on
  int windows = 0;     // of all kinds, at any depth
  double megabytes = 0;

  // "handles 70, GDI objects 12, windows 50, 8.3 MB"
  std::string Text() const;
};

// Of a 32-bit process; needs the right to read its memory. What cannot be counted is -1.
Holdings HoldingsOf(HANDLE process);
Holdings OwnHoldings();

}  // namespace gui
