// The rows of an accessible report: the ancestors of an object, and its children. Each row ends
// with CR LF.
#pragma once

#include <windows.h>

#include <oleacc.h>

#include <string>

#include "accessibility/MyAccessible.h"
#include "platform/ReadSession.h"
#include "settings/Settings.h"

namespace MyAccessible {

struct RowFacts {
  std::wstring name;
  std::wstring role;  // decimal
  std::wstring roleText;
  Location location;
  std::wstring childCount;
  std::wstring last;      // the last column
  std::wstring typeName;  // for children that are objects
};

std::wstring RowText(const RowFacts& row);

// The ancestors of the child of object, the outermost first; "parent & children max" + 1 at most,
// none when that is 0. The last column holds the ancestor's name for child. After an interruption a
// mark stands in place of the others.
std::wstring AncestorRows(IAccessible* object, const VARIANT& child,
                          const settings::Settings& settings, const platform::ReadSession& session);

// The children of the object or child, "parent & children max" at most, then a line that says that
// the rest is omitted. The last column holds the value; children that are objects show their type.
std::wstring ChildRows(IAccessible* object, const VARIANT& child,
                       const settings::Settings& settings, const platform::ReadSession& session);

}  // namespace MyAccessible
