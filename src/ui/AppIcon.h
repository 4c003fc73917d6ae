// The program's icon.
#pragma once

#include <windows.h>

namespace ui {

// The number of the icon in the resources.
constexpr int kAppIconId = 1;

// The icon in the size that these two system metrics give; shared, so it must not be destroyed.
// Null when the program has no icon.
HICON AppIcon(int widthMetric, int heightMetric);

}  // namespace ui
