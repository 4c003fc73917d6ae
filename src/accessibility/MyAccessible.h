// The accessible object of a window or at a point, and its members, one small function each. A
// member that fails or that a server does not support is an empty text.
#pragma once

#include <windows.h>

#include <oleacc.h>
#include <wrl/client.h>

#include <cstdint>
#include <optional>
#include <string>

#include "platform/ComOwners.h"
#include "platform/ReadPoint.h"

namespace MyAccessible {

using AccessiblePtr = Microsoft::WRL::ComPtr<IAccessible>;

// An object and one of its children: 0 (CHILDID_SELF) is the object itself.
struct ObjectAndChild {
  AccessiblePtr object;  // empty when there is none
  platform::UniqueVariant child;
};

// The accessible object of the window's client area; empty when there is none.
AccessiblePtr GetAccessibleObj(HWND hwnd);

// Fills found with the object at the read point; returns whether there is one. In a window that is
// meant instead of the system's it is the window's own, or what that finds there.
bool GetAccessibleObjAt(const platform::ReadPoint& point, ObjectAndChild& found);

// The accessible object that a child variant holds; empty when it holds none.
AccessiblePtr ObjectIn(const VARIANT& child);

// Whether the child is the number 0, which means the object itself.
bool IsSelf(const VARIANT& child);

// The child argument left out, and the child that means the object itself.
const VARIANT& LeftOut();
const VARIANT& Self();

std::wstring AccName(IAccessible* object, const VARIANT& child);
std::wstring AccValue(IAccessible* object, const VARIANT& child);
std::wstring AccDescription(IAccessible* object, const VARIANT& child);
std::wstring AccDefaultAction(IAccessible* object, const VARIANT& child);
std::wstring AccKeyboardShortcut(IAccessible* object, const VARIANT& child);

// The role: its decimal number, or the text that a server gives instead.
std::wstring AccRole(IAccessible* object, const VARIANT& child);

// The Japanese name of the role. A role that cannot be read is reported in a message box.
std::wstring GetAccRoleText(IAccessible* object, const VARIANT& child);

// The state bits; nothing when they cannot be read or are not a number.
std::optional<std::int32_t> AccState(IAccessible* object, const VARIANT& child);

// The sentences of the state bits that are set.
std::wstring AccStateText(IAccessible* object, const VARIANT& child);

// "0" when accFocus yields nothing, else "1".
std::wstring AccFocus(IAccessible* object);

// In screen pixels; all 0 when it cannot be read.
struct Location {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;
};
Location AccLocation(IAccessible* object, const VARIANT& child);

AccessiblePtr AccParent(IAccessible* object);

// accChildCount of an object, in decimal.
std::wstring AccChildCount(IAccessible* object);

// The number of children of the child: of the object that it holds, or of object for the child 0;
// "0" for any other number, and empty for any other kind of child.
std::wstring ChildCountText(IAccessible* object, const VARIANT& child);

// The child's number; 0 when it is none.
std::int32_t ChildId(const VARIANT& child);

// "Real Object", "Container", "Simple Element" or empty. An object whose children can be counted
// is a container even when it has none.
std::wstring GetObjectType(IAccessible* object, const VARIANT& child);

// accName of the window's own accessible object; empty when there is none.
std::wstring AccNameOfWindow(HWND hwnd);

}  // namespace MyAccessible
