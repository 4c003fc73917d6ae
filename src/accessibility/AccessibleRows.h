// The rows of an accessible report: the ancestors of an object, and its children. Each row ends
// with CR LF.
#pragma once

#include <windows.h>

#include <oleacc.h>

#include <cstdint>
#include <optional>
#include <string>

#include "accessibility/ChildWalk.h"
#include "accessibility/MyAccessible.h"
#include "platform/ItemSink.h"
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

// The row of an ancestor; child is that of the object whose ancestor it is. The last column holds
// the ancestor's name for it.
RowFacts ReadAncestorRow(IAccessible* ancestor, const VARIANT& child, std::int32_t accnameMax);

// The row of a child of object. The last column holds the value; children that are objects show
// their type.
RowFacts ReadChildRow(IAccessible* object, const VARIANT& child, std::int32_t accnameMax);

// The object whose children a report lists; empty for a simple element, which has none.
AccessiblePtr Parent(IAccessible* object, const VARIANT& child);

// Calls take(ancestor) for the ancestors of the child of object, the nearest first, most of them at
// most. Returns whether that was interrupted: parents may form a circle.
template <typename Take>
bool ForEachAncestor(IAccessible* object, const VARIANT& child, std::int64_t most,
                     const platform::ReadSession& session, const Take& take) {
  AccessiblePtr ancestor = IsSelf(child) ? AccParent(object) : AccessiblePtr(object);
  for (std::int64_t i = 0; ancestor && i < most; ++i) {
    if (!session.GoesOn(platform::ReadUntil::kCaptureEnds)) return true;
    take(ancestor.Get());
    session.yield();
    ancestor = AccParent(ancestor.Get());
  }
  return false;
}

// Calls take(parent, child) for the children of the object or child, most of them at most. Returns
// why others are missing.
template <typename Take>
std::optional<platform::Ending> ForEachChild(IAccessible* object, const VARIANT& child,
                                             std::int32_t most,
                                             const platform::ReadSession& session,
                                             const Take& take) {
  const AccessiblePtr parent = Parent(object, child);
  if (!parent) return std::nullopt;
  std::int32_t listed = 0;
  ChildWalk walk(parent.Get(), most);
  while (const VARIANT* const next = walk.Next()) {
    if (!session.GoesOn(platform::ReadUntil::kCaptureEnds)) return platform::Ending::kInterrupted;
    if (listed >= most) return platform::Ending::kRestOmitted;
    take(parent.Get(), *next);
    session.Step(std::to_wstring(++listed));
  }
  return std::nullopt;
}

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
