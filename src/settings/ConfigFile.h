// Conf.txt beside the program: read once when the program starts, written once when it ends.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/Interface.h"
#include "settings/ConfigKeys.h"

namespace settings {

// The main window, as LoadConfig and SaveConfig need it.
class ConfigWindow : public platform::Interface {
 public:
  virtual ScreenTwips Screen() const = 0;
  // While the layout is held back, Form_Resize does nothing.
  virtual void HoldLayout(bool hold) = 0;
  // Gives the window this restored rectangle (pixels) and shows it, without any check against the
  // screen.
  virtual void ApplyPlacement(const WindowValues& values) = 0;
  // The window's restored rectangle; turnBack is the box's value.
  virtual WindowValues CurrentValues() const = 0;
  // Colours the pointer position label RGB(128, 128, 255).
  virtual void HighlightMousePos() = 0;
  // Show a value in a box, which is ticked for every value but 0. The box of "turn back" also keeps
  // that setting: the 0 or 1 that it then holds is returned.
  virtual std::int32_t SetTurnBackBox(std::int32_t value) = 0;
  virtual void SetDetailBox(std::int32_t value) = 0;
  virtual void SetAutoStopBox(std::int32_t value) = 0;
  // Height of the visible top pane, in twips.
  virtual void SetVisibleTopPaneHeight(std::int32_t height) = 0;
  virtual void RunLayout() = 0;
};

// folder + "\" + "Conf.txt".
std::wstring ConfigPath(const std::wstring& folder);

// Sets the defaults in record, reads the file at path if there is one, and applies the window's
// values to it. A file that cannot be opened counts as no file. Reports nothing.
void LoadConfig(const std::wstring& path, ConfigWindow& window, Settings& record);

// Writes all values to the file at path, replacing it. An error ends the writing silently; the
// lines written so far stay.
void SaveConfig(const std::wstring& path, const ConfigWindow& window, const Settings& record);

// Takes bytes; returns whether they were written.
using ByteSink = std::function<bool(std::string_view bytes)>;

// Writes the lines of values to sink in the system's ANSI code page, until it fails.
void WriteConfig(const ByteSink& sink, const ConfigValues& values);

}  // namespace settings
