// The four red dots around the read point, shown while the point is shifted away from the pointer.
#pragma once

#include <windows.h>

#include <array>
#include <memory>

namespace ui {

constexpr std::size_t kMarkerCount = 4;

// The top left corner of marker index (0 to 3) around that read point, which stays uncovered.
POINT MarkerPlace(std::size_t index, POINT readPoint);

// One of frmP0 to frmP3: 2 by 2 pixels, above all other windows, never active.
class Marker;

class Markers {
 public:
  Markers();
  ~Markers();

  // Shows or hides all four; loads them on first use. Neither the focus nor the window in front
  // changes, and no menu closes.
  void Show(bool visible);

  // Moves them to the four diagonal corners of point (screen pixels).
  void Place(POINT point);

  void Unload();

  // The window of marker index (0 to 3); null while it is not loaded.
  HWND Handle(std::size_t index) const;

 private:
  void Load();
  void CallToFront();

  std::array<std::unique_ptr<Marker>, kMarkerCount> markers_;
};

}  // namespace ui
