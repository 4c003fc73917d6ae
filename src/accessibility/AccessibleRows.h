// The rows of an accessible report: the ancestors of an object, and its children. Each row ends
// with CR LF.
#pragma once

#include <windows.h>

#include <oleacc.h>

#include <string>

#include "accessibility/ListingProgress.h"
#include "accessibility/MyAccessible.h"
#include "settings/Settings.h"

namespace MyAccessible {

struct RowFacts {
  std::wstring name;
  std::wstring role;  // decimal
  std::wstring roleText;
  Location location;
  std::wstring childCount;
  std::wstring last;      // the last column
  std::wstring typeName;  // for rows that tell it
};

std::wstring RowText(const RowFacts& row);

// The objects that hold the child of object, the outermost first; "parent & children max" + 1 at
// most, none when that is 0. The last column holds the ancestor's name for child. Those that are
// not reached before the capture moves on are left out, with a mark in their place; a capture that
// ends gets them all.
std::wstring AncestorRows(IAccessible* object, const VARIANT& child,
                          const settings::Settings& settings, const ListingProgress& progress);

// The children of what child means, "parent & children max" at most, and then a line that says so.
// The last column holds the value; children that are objects tell their type.
std::wstring ChildRows(IAccessible* object, const VARIANT& child,
                       const settings::Settings& settings, const ListingProgress& progress);

}  // namespace MyAccessible
