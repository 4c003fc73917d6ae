// The list text of a control: which reader its category has, and what it read.
#pragma once

#include <windows.h>

#include "extract/TextReading.h"
#include "platform/ReadSession.h"
#include "report/ControlCategory.h"
#include "settings/Settings.h"

namespace report {

// What a reader works on.
struct ControlRead {
  HWND hwnd;    // noted when the report began
  POINT point;  // likewise, in screen pixels
  const platform::ReadSession& session;
};

// Empty for the categories that have no reader.
extract::TextReading ReadControl(Category category, const ControlRead& read,
                                 const settings::Settings& settings);

}  // namespace report
