// Calls into accessible objects with nothing around them: the yardstick of the readers.
#pragma once

#include <windows.h>

#include <oleacc.h>
#include <wrl/client.h>

#include "platform/ComOwners.h"

namespace bench {

using ObjectPtr = Microsoft::WRL::ComPtr<IAccessible>;

// An object and a child in it, asked for members whose answers are thrown away.
class BareObject {
 public:
  BareObject(IAccessible* object, const VARIANT& child) : object_(object), child_(child) {}

  void Text(HRESULT (STDMETHODCALLTYPE IAccessible::*member)(VARIANT, BSTR*)) const {
    platform::UniqueBstr text;
    (object_->*member)(child_, text.Receive());
  }
  void Name() const { Text(&IAccessible::get_accName); }
  void Role() const {
    platform::UniqueVariant role;
    object_->get_accRole(child_, role.Receive());
  }
  void State() const {
    platform::UniqueVariant state;
    object_->get_accState(child_, state.Receive());
  }
  void Focus() const {
    platform::UniqueVariant focus;
    object_->get_accFocus(focus.Receive());
  }
  void Location() const {
    long at[4] = {};
    object_->accLocation(&at[0], &at[1], &at[2], &at[3], child_);
  }
  long ChildCount() const {
    long count = 0;
    object_->get_accChildCount(&count);
    return count;
  }
  ObjectPtr Parent() const {
    Microsoft::WRL::ComPtr<IDispatch> dispatch;
    ObjectPtr parent;
    if (SUCCEEDED(object_->get_accParent(dispatch.GetAddressOf())) && dispatch) {
      dispatch.As(&parent);
    }
    return parent;
  }
  bool Navigate(long direction, platform::UniqueVariant& end) const {
    return SUCCEEDED(object_->accNavigate(direction, child_, end.Receive())) &&
           end.Get().vt == VT_I4;
  }

 private:
  IAccessible* object_;
  VARIANT child_;
};

}  // namespace bench
