// The list text of a control: which ways of reading its category has, and what they read.
#pragma once

#include <windows.h>

#include <string_view>

#include "extract/ItemReading.h"
#include "extract/TextReading.h"
#include "platform/ItemSink.h"
#include "platform/ReadPoint.h"
#include "platform/ReadSession.h"
#include "report/ControlCategory.h"
#include "settings/Settings.h"

namespace report {

// What a reader works on.
struct ControlRead {
  HWND hwnd;                      // noted when the report began
  std::wstring_view className;    // likewise
  platform::ReadPoint readPoint;  // likewise
  const platform::ReadSession& session;
};

// Empty for the categories that have no reader. When the first way gives no text, the next one is
// tried; when none does, the result is that of the first.
extract::TextReading ReadControl(Category category, const ControlRead& read,
                                 const settings::Settings& settings);

// The same, item by item into a sink. Returns the method.
extract::Method ReadControlItems(Category category, const ControlRead& read,
                                 const settings::Settings& settings, platform::ItemSink& sink);

}  // namespace report
