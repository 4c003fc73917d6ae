// The settings dialog as data: one row a control, which also says which setting the control holds.
// A new setting is one row here and one in settings/ConfigKeys.cpp.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "settings/Settings.h"
#include "ui/Controls.h"
#include "ui/KeyFilter.h"

namespace ui {

// How a control holds its setting.
enum class Holds {
  Nothing,
  Box,          // a check box: 0 or 1 once it is clicked
  Option,       // an option button: the setting is its number when it is the chosen one
  ListIndex,    // a drop-down list: the index of the chosen item
  ListNumber,   // a drop-down list: the number that its text begins with, chosen or typed
  TypedNumber,  // a text box: the number that its text begins with, once the box is left
};

struct SettingControl {
  ControlRow row;
  const wchar_t* toolTip = nullptr;
  Holds holds = Holds::Nothing;
  std::int32_t settings::Settings::*setting = nullptr;
  std::int32_t number = 0;  // of an Option its value, of a ListNumber the least width of its text
  std::span<const wchar_t* const> items{};  // of a drop-down list
  Typing typing = Typing::Anything;
};

constexpr int kSettingPages = 4;
constexpr std::int32_t kSettingInnerWidth = 4485;  // twips
constexpr std::int32_t kSettingInnerHeight = 6750;

// In the order of the Tab key.
std::span<const SettingControl> SettingControls();

// The row of that number; null when there is none.
const SettingControl* FindSettingControl(int id);

}  // namespace ui
