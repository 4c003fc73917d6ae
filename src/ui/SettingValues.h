// The way between a control of the settings dialog and the setting that it holds.
#pragma once

#include <windows.h>

#include "settings/Settings.h"
#include "ui/SettingControls.h"

namespace ui {

// Fills a drop-down list with its items and gives a box its key filter.
void PrepareControl(const SettingControl& control, HWND window);

// Shows the setting in its control. A setting in a check box becomes what the box then holds.
void ShowSetting(const SettingControl& control, HWND window, settings::Settings& settings);

// Whether that notification code tells that the user changed the setting.
bool TellsChange(const SettingControl& control, int notification);

// Stores what the control holds after that notification; returns whether the setting changed.
bool StoreSetting(const SettingControl& control, HWND window, int notification,
                  settings::Settings& settings);

}  // namespace ui
