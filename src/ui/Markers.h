// The four red dots around the read point, shown while the point is shifted away from the pointer.
#pragma once

#include <windows.h>

#include <array>
#include <memory>

namespace ui {

// One of frmP0 to frmP3: 2 by 2 pixels, above all other windows, never active.
class Marker;

class Markers {
 public:
  Markers();
  ~Markers();

  // Shows or hides all four; loads them when they are needed first.
  void Show(bool visible);

  // Moves them to the four diagonal corners of point (screen pixels), which stays uncovered.
  void Place(POINT point);

  void Unload();

  // The window of marker index (0 to 3); null while it is not loaded.
  HWND Handle(std::size_t index) const;

 private:
  void Load();

  std::array<std::unique_ptr<Marker>, 4> markers_;
};

}  // namespace ui
