// A test aid: performs an action on the accessible object at the read point.
#pragma once

#include <windows.h>

#include <oleacc.h>

#include <cstdint>

#include "platform/ReadPoint.h"

namespace MyAccessible {

// mode 1: the default action; 2: accSelect with SELFLAG_TAKEFOCUS; 3: accSelect with
// SELFLAG_TAKESELECTION; any other does nothing. Returns true only when object is null, after a
// message box that says so. A call that fails is reported in a message box.
bool AccAction(std::int32_t mode, IAccessible* object, const VARIANT& child);

// AccAction on the object at the read point.
bool AccActionAt(std::int32_t mode, const platform::ReadPoint& point);

}  // namespace MyAccessible
