#include "accessibility/MyAccessible.h"

namespace MyAccessible {

AccessiblePtr GetAccessibleObj(HWND hwnd) {
  AccessiblePtr object;
  if (FAILED(AccessibleObjectFromWindow(hwnd, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                        reinterpret_cast<void**>(object.GetAddressOf())))) {
    return {};
  }
  return object;
}

bool GetAccessibleObjAt(POINT point, ObjectAndChild& found) {
  const HRESULT result =
      AccessibleObjectFromPoint(point, found.object.GetAddressOf(), found.child.Receive());
  return SUCCEEDED(result) && found.object != nullptr;
}

std::wstring AccName(IAccessible* object, const VARIANT& child) {
  platform::UniqueBstr name;
  if (FAILED(object->get_accName(child, name.Receive()))) return {};
  return name.Text();
}

std::wstring AccValue(IAccessible* object, const VARIANT& child) {
  platform::UniqueBstr value;
  if (FAILED(object->get_accValue(child, value.Receive()))) return {};
  return value.Text();
}

std::wstring AccNameOfWindow(HWND hwnd) {
  const AccessiblePtr object = GetAccessibleObj(hwnd);
  const platform::UniqueVariant self(CHILDID_SELF);
  return object ? AccName(object.Get(), self.Get()) : std::wstring();
}

}  // namespace MyAccessible
