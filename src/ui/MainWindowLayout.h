// Where the main window's controls go: pure functions from sizes to rectangles, all in twips.
#pragma once

#include <cstdint>

#include "ui/Twips.h"

namespace ui {

// The least outer height of the main window. It has no least width.
constexpr std::int32_t kMinOuterHeight = 3150;

// The rectangles of the controls that the layout moves, each in its parent. T and B are the
// members in use of the pane pairs.
struct MainWindowGeometry {
  TwipsRect T;
  TwipsRect B;
  TwipsRect frCenter;
  TwipsRect imgSplitter;
  TwipsRect picSplitter;
  TwipsRect chkAutoStop;
  TwipsRect chkTurnBack;
  TwipsRect fr_Mous;
  TwipsRect lblStatus;
  TwipsRect fr_Help;
  TwipsRect lblMsg;
  TwipsRect txtStatus;
  TwipsRect chkDetail;  // this and the following in frCenter
  TwipsRect txtCount;
  TwipsRect lblListKind;
  TwipsRect txtWin1;
  TwipsRect txtWin2;

  bool operator==(const MainWindowGeometry&) const = default;
};

struct LayoutSizes {
  std::int32_t SW;  // inner width of the window
  std::int32_t SH;  // inner height
  TwipsScale scale;
};

// Computes the new layout from the current places of the controls. topHeight is the setting: the
// top pane gets it when it fits, else it is shrunk and so is the setting. A step that would make a
// size negative is skipped; the others still run.
MainWindowGeometry Layout(MainWindowGeometry now, const LayoutSizes& sizes,
                          std::int32_t& topHeight);

// The top of the bar while the splitter is dragged: y twips below the top of the grip, kept 1400
// twips away from the top and from the bottom. The top limit is tested first.
std::int32_t SplitterPosition(std::int32_t gripTop, std::int32_t y, std::int32_t SH);

// The height that lets the top pane and the centre strip end at position.
std::int32_t TopPaneHeightFor(std::int32_t position, const MainWindowGeometry& now);

}  // namespace ui
