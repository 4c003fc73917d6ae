// The report on one accessible object: its members, its ancestors and its children.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "accessibility/MyAccessible.h"
#include "platform/ReadSession.h"
#include "settings/Settings.h"

namespace MyAccessible {

// The members of the object, as far as they could be read.
struct AccessibleFacts {
  std::wstring name;
  std::wstring value;
  std::wstring role;  // decimal, or the text that the server gives instead
  std::wstring roleText;
  std::wstring state;  // decimal
  std::wstring stateText;
  std::wstring keyboardShortcut;
  std::wstring focus;       // "0" when accFocus yields nothing, else "1"
  std::wstring parentName;  // this, parentRole and children only with "parent & children"
  std::wstring parentRole;  // number, ":", name
  std::wstring defaultAction;
  std::wstring childCount;
  std::wstring children;  // rows
  std::wstring description;
  Location location;
};

// The members of the object itself, without what its parent and its children say.
AccessibleFacts ReadMembers(const ObjectAndChild& found);

// The window whose object is reported; without hwnd it is the object at the point.
struct ReportedWindow {
  HWND hwnd = nullptr;
  std::wstring className;
  std::wstring title;
};

// Everything that the report shows.
struct ReportFacts {
  ReportedWindow window;
  AccessibleFacts object;
  std::int32_t id = 0;
  std::wstring objectType;
  bool hasAncestors = false;
  std::wstring ancestors;  // rows
};

// Whether the right or the bottom edge of the object does not fit into 32 bits, which ends its
// report there.
bool EdgeOverflows(const AccessibleFacts& object);

// The report in words.
std::wstring AccessibleReportText(const ReportFacts& facts, const settings::Settings& settings);

// Reads the window's object, or without a window the object at the read point, into record and
// returns the report on it; empty when there is no object. What ends the report early is shown in a
// message box, and what was built until then is returned.
std::wstring GetAccessibleMemberFromPoint(AccessibleFacts& record, const ReportedWindow& window,
                                          const platform::ReadPoint& point,
                                          const settings::Settings& settings,
                                          const platform::ReadSession& session);

// The same for an object that was found already.
std::wstring ReportOf(AccessibleFacts& record, const ReportedWindow& window,
                      const ObjectAndChild& found, const settings::Settings& settings,
                      const platform::ReadSession& session);

}  // namespace MyAccessible
