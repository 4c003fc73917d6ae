#include "ui/AppIcon.h"

namespace ui {

HICON AppIcon(int widthMetric, int heightMetric) {
  return static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(kAppIconId),
                                       IMAGE_ICON, GetSystemMetrics(widthMetric),
                                       GetSystemMetrics(heightMetric), LR_SHARED));
}

}  // namespace ui
