// The main window's controls as data, and which of them the layout moves.
#pragma once

#include <span>

#include "ui/Controls.h"
#include "ui/MainWindowLayout.h"

namespace ui {

std::span<const ControlRow> MainWindowControls();

struct MovedControl {
  int id;
  TwipsRect MainWindowGeometry::*place;
};

// All controls that the layout moves, except the panes: of these it moves the members in use.
std::span<const MovedControl> MovedControls();

// The places of the table above.
MainWindowGeometry DesignGeometry();

// The member of a pane pair, 0 scrolls sideways and 1 wraps.
int TopPaneId(int member);
int BottomPaneId(int member);

}  // namespace ui
