// The accessible object of a window or at a point, and its members. A member that a server does
// not support is an empty text.
#pragma once

#include <windows.h>

#include <oleacc.h>
#include <wrl/client.h>

#include <string>

#include "platform/ComOwners.h"

namespace MyAccessible {

using AccessiblePtr = Microsoft::WRL::ComPtr<IAccessible>;

// An object and the child in it that is meant: 0 (CHILDID_SELF) for the object itself.
struct ObjectAndChild {
  AccessiblePtr object;  // empty when there is none
  platform::UniqueVariant child;
};

// The accessible object of the window's client area; empty when there is none.
AccessiblePtr GetAccessibleObj(HWND hwnd);

// Fills found with the object at a screen point (pixels); returns whether there is one.
bool GetAccessibleObjAt(POINT point, ObjectAndChild& found);

// The member accName of child.
std::wstring AccName(IAccessible* object, const VARIANT& child);

// The member accValue of child.
std::wstring AccValue(IAccessible* object, const VARIANT& child);

// accName of the window's own accessible object; empty when there is none.
std::wstring AccNameOfWindow(HWND hwnd);

}  // namespace MyAccessible
