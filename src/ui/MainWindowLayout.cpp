#include "ui/MainWindowLayout.h"

namespace ui {
namespace {

constexpr std::int32_t kPaneLeft = 30;
constexpr std::int32_t kStatusLeft = 60;
constexpr std::int32_t kTopPaneSlack = 120;  // how far the top pane may reach below the window
constexpr std::int32_t kRoomBelowTopPane = 1500;
constexpr std::int32_t kSplitterLimit = 1400;

void SetWidth(TwipsRect& rect, std::int32_t width) {
  if (width >= 0) rect.width = width;
}

bool SetHeight(TwipsRect& rect, std::int32_t height) {
  if (height < 0) return false;
  rect.height = height;
  return true;
}

// The size a control reports after it was given one: whole pixels.
std::int32_t AsReported(std::int32_t twips, const TwipsScale& scale) {
  return scale.TwipsY(scale.PixelsY(twips));
}

void FlushRight(TwipsRect& rect, std::int32_t SW) { rect.left = SW - rect.width; }

}  // namespace

MainWindowGeometry Layout(MainWindowGeometry g, const LayoutSizes& sizes, std::int32_t& topHeight) {
  const auto& [SW, SH, scale] = sizes;

  FlushRight(g.chkAutoStop, SW);
  FlushRight(g.chkTurnBack, SW);
  FlushRight(g.fr_Mous, SW);
  SetWidth(g.lblStatus, g.fr_Mous.left - g.lblStatus.left - 2 * scale.TwipsPerPixelX);

  // The horizontal factor for vertical margins. Odd, and stays: docs/ODDITIES.md.
  FlushRight(g.fr_Help, SW);
  g.fr_Help.top = SH - g.fr_Help.height - 5 * scale.TwipsPerPixelX;
  g.lblMsg.top = g.fr_Help.top + 3 * scale.TwipsPerPixelX;
  SetWidth(g.lblMsg, g.fr_Help.left - g.lblMsg.left);

  g.txtStatus.left = kStatusLeft;
  g.txtStatus.top = g.fr_Help.top - g.txtStatus.height - scale.TwipsPerPixelY;
  SetWidth(g.txtStatus, SW - kStatusLeft);

  g.T.left = kPaneLeft;
  SetWidth(g.T, SW - kPaneLeft);
  // A pane that was shrunk stays small. Odd, and stays: docs/ODDITIES.md.
  if (g.T.Bottom() > SH + kTopPaneSlack) {
    if (SetHeight(g.T, SH - g.T.top - kRoomBelowTopPane)) {
      topHeight = AsReported(g.T.height, scale);
    }
  } else {
    SetHeight(g.T, topHeight);
  }

  g.frCenter.left = g.T.left;
  g.frCenter.top = g.T.Bottom();
  g.frCenter.width = g.T.width;
  g.imgSplitter.left = g.T.left;
  g.imgSplitter.width = g.T.width;
  g.imgSplitter.top = g.frCenter.Bottom();
  g.picSplitter.left = g.T.left;
  g.picSplitter.width = g.T.width;

  g.B.left = g.T.left;
  g.B.top = g.imgSplitter.Bottom();
  SetWidth(g.B, SW - g.B.left);
  // One twip into the status box. Odd, and stays: docs/ODDITIES.md.
  SetHeight(g.B, g.txtStatus.top + 1 - g.B.top);

  FlushRight(g.chkDetail, g.frCenter.width);
  g.txtCount.left = g.chkDetail.left - g.txtCount.width - 4 * scale.TwipsPerPixelX;
  SetWidth(g.txtWin2, g.txtCount.left - g.txtWin2.left);
  g.txtWin2.top = g.txtWin1.top;
  g.lblListKind.left = g.txtCount.left - g.lblListKind.width - 4 * scale.TwipsPerPixelX;
  return g;
}

std::int32_t SplitterPosition(std::int32_t gripTop, std::int32_t y, std::int32_t SH) {
  const std::int32_t position = gripTop + y;
  // In a low window the limits cross. Odd, and stays: docs/ODDITIES.md.
  if (position < kSplitterLimit) return kSplitterLimit;
  if (position >= SH - kSplitterLimit) return SH - kSplitterLimit;
  return position;
}

std::int32_t TopPaneHeightFor(std::int32_t position, const MainWindowGeometry& now) {
  return position - now.frCenter.height - now.T.top;
}

}  // namespace ui
