// The settings record: one field a key of Conf.txt, named after its key. Settings are changed here;
// the file is written when the program ends.
#pragma once

#include <cstdint>
#include <string>

namespace settings {

struct Settings {
  std::int32_t topHeight = 0;  // twips
  std::int32_t dispTop = 0;
  std::int32_t treeviewIndent = 0;
  std::int32_t listviewCol = 0;  // 0 tabs, 1 commas, 2 first column only
  std::int32_t toFile = 0;
  std::int32_t turnBack = 0;  // member of each pane pair that is in use; the box's value, 0 or 1
  std::wstring mousPos;       // "screen" or "client"
  std::wstring winHandle;     // "dec" or "hex"
  std::wstring hotkey;        // a name of the hot-key list
  std::int32_t enableHotT = 0;
  std::int32_t dispText = 0;
  std::int32_t startNode = 0;
  std::int32_t autoStart = 0;
  std::int32_t clipboard = 0;  // 0 none, 1 on click, 2 top text on stop, 3 bottom text on stop
  std::int32_t hint = 0;       // 0 status bar, 1 tool tip
  std::int32_t autoStop = 0;
  std::int32_t autoStopTime = 0;  // seconds
  std::int32_t autoClose = 0;
  std::int32_t chime = 0;
  std::wstring chimeFile;
  std::int32_t detail = 0;
  std::int32_t shift = 0;
  std::int32_t shiftx = 0;           // pixels
  std::int32_t shifty = 0;           // pixels
  std::int32_t continueCapture = 0;  // key "continue"
  std::int32_t parentChildren = 0;
  std::int32_t parentChildrenMax = 0;
  std::int32_t accnameMax = 0;  // characters
  std::int32_t fromHwnd = 0;
  std::int32_t actionTest = 0;         // 0 none, 1 default action, 2 and 3 the two selections
  std::int32_t htmlTagTextLength = 0;  // characters
  std::wstring accValueText;           // comma-separated class names
  std::int32_t readWhole = 0;
  std::int32_t settingNo = 0;
  std::int32_t settingLeft = 0;  // twips
  std::int32_t settingTop = 0;   // twips

  bool operator==(const Settings&) const = default;
};

// The values of Conf.txt outside the record: they are applied to the main window and read back from
// it.
struct WindowValues {
  std::int32_t formLeft = 0;  // pixels, the restored rectangle on the screen
  std::int32_t formTop = 0;
  std::int32_t formRight = 0;
  std::int32_t formBottom = 0;
  std::int32_t turnBack = 0;  // as the file says; the box holds 0 or 1

  bool operator==(const WindowValues&) const = default;
};

}  // namespace settings
