// What a process holds of the system, for tests that look for leaks.
#pragma once

#include <windows.h>

#include <string>

namespace gui {

struct Holdings {
  int handles = 0;     // to kernel objects other than events
  int events = 0;      // separate, because Wine keeps some: see Allowance
  int gdiObjects = 0;  // fonts, brushes, bitmaps, device contexts and so on
  int windows = 0;     // of all kinds, at any depth
  double megabytes = 0;

  // "handles 70, events 9, GDI objects 12, windows 50, 8.3 MB"
  std::string Text() const;
};

// Of a 32-bit process; needs the right to read its memory. What cannot be counted is -1.
Holdings HoldingsOf(HANDLE process);
Holdings OwnHoldings();

// What a process may hold more than before and still count as unchanged.
struct Allowance {
  int handles = 0;
  // Wine keeps one for each accessible object that was in use when its process ended, also after
  // two bare calls: get an object, let its process end, release it.
  int events = 0;
  int gdiObjects = 0;
  int windows = 0;
  double megabytes = 2;
};

// Whether now is no more than before, beyond what is allowed.
bool IsWithin(const Holdings& before, const Holdings& now, const Allowance& allowance);

}  // namespace gui
