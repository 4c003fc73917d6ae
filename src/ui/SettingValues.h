// From a setting to its control in the settings dialog, and back.
#pragma once

#include <windows.h>

#include "settings/Settings.h"
#include "ui/SettingControls.h"

namespace ui {

// Fills a drop-down list with its items and gives a box its key filter.
void PrepareControl(const SettingControl& control, HWND window);

// Shows the setting in its control: a check box is ticked for every value but 0, and a value that
// an option or list does not have chooses nothing.
void ShowSetting(const SettingControl& control, HWND window, const settings::Settings& settings);

// Whether that notification code means that the user changed the setting.
bool TellsChange(const SettingControl& control, int notification);

// Stores what the control holds after that notification; returns whether the setting changed.
bool StoreSetting(const SettingControl& control, HWND window, int notification,
                  settings::Settings& settings);

}  // namespace ui
