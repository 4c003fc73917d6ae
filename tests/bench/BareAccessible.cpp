#include "BareAccessible.h"

#include <oleacc.h>
#include <wrl/client.h>

#include <algorithm>
#include <array>
#include <functional>

#include "Turns.h"
#include "accessibility/MyAccessible.h"
#include "platform/ComOwners.h"

namespace bench {
namespace {

using ObjectPtr = Microsoft::WRL::ComPtr<IAccessible>;

// An object and a child of it; the answers of its members are ignored.
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

ObjectPtr ObjectIn(const VARIANT& value) {
  ObjectPtr object;
  if (value.vt == VT_DISPATCH && value.pdispVal != nullptr) {
    value.pdispVal->QueryInterface(IID_IAccessible,
                                   reinterpret_cast<void**>(object.GetAddressOf()));
  }
  return object;
}

using ChildVisit = std::function<void(const VARIANT& child)>;

void ForEachChild(IAccessible* object, const ChildVisit& visit) {
  std::array<VARIANT, 64> children{};
  const long count = BareObject(object, MyAccessible::Self()).ChildCount();
  for (long from = 0; from < count;) {
    long got = 0;
    const long asked = std::min<long>(static_cast<long>(children.size()), count - from);
    if (FAILED(AccessibleChildren(object, from, asked, children.data(), &got)) || got == 0) return;
    for (long i = 0; i < got; ++i) {
      VARIANT& child = children[static_cast<std::size_t>(i)];
      visit(child);
      VariantClear(&child);
    }
    from += got;
  }
}

// The members that a row about an ancestor or a child shows; the role's number and its word are two
// calls.
void AskRow(const BareObject& object) {
  object.Name();
  object.Role();
  object.Role();
  object.Location();
}

void AskAncestors(const MyAccessible::ObjectAndChild& found) {
  const VARIANT& child = found.child.Get();
  ObjectPtr ancestor = MyAccessible::IsSelf(child) ? BareObject(found.object.Get(), child).Parent()
                                                   : ObjectPtr(found.object);
  while (ancestor) {
    const BareObject self(ancestor.Get(), MyAccessible::Self());
    AskRow(self);
    self.ChildCount();
    BareObject(ancestor.Get(), child).Name();
    ancestor = self.Parent();
  }
}

void AskChildRow(IAccessible* parent, const VARIANT& child) {
  const ObjectPtr held = ObjectIn(child);
  const BareObject object(held ? held.Get() : parent, held ? MyAccessible::Self() : child);
  AskRow(object);
  object.Text(&IAccessible::get_accValue);
  if (!held) return;
  object.ChildCount();
  object.ChildCount();
}

void AskListing(IAccessible* object) {
  ForEachChild(object, [object](const VARIANT& child) {
    const ObjectPtr held = ObjectIn(child);
    if (!held) {
      BareObject(object, child).Name();
    } else {
      BareObject(held.Get(), MyAccessible::Self()).Name();
      PumpMessages();
      AskListing(held.Get());
    }
  });
}

}  // namespace

void AskTextAtPoint(POINT point) {
  wchar_t className[128];
  GetClassNameW(WindowFromPoint(point), className, 128);
  MyAccessible::ObjectAndChild found;
  AccessibleObjectFromPoint(point, found.object.GetAddressOf(), found.child.Receive());
  BareObject(found.object.Get(), found.child.Get()).Name();
}

void AskAccessibleReport(POINT point) {
  MyAccessible::ObjectAndChild found;
  AccessibleObjectFromPoint(point, found.object.GetAddressOf(), found.child.Receive());
  const BareObject object(found.object.Get(), found.child.Get());
  object.Location();
  object.Name();
  object.Text(&IAccessible::get_accValue);
  object.Role();
  object.Role();
  object.State();
  object.State();
  BareObject(found.object.Get(), MyAccessible::LeftOut())
      .Text(&IAccessible::get_accKeyboardShortcut);
  object.Focus();
  object.Text(&IAccessible::get_accDefaultAction);
  object.Text(&IAccessible::get_accDescription);
  if (const ObjectPtr parent = object.Parent()) {
    BareObject(parent.Get(), MyAccessible::LeftOut()).Name();
    const BareObject self(parent.Get(), MyAccessible::Self());
    self.Role();
    self.Role();
  }
  if (MyAccessible::IsSelf(found.child.Get())) {
    object.ChildCount();
    ForEachChild(found.object.Get(),
                 [&](const VARIANT& child) { AskChildRow(found.object.Get(), child); });
    object.ChildCount();
  }
  AskAncestors(found);
  AskAncestors(found);
}

void AskChildListing(HWND hwnd) {
  ObjectPtr object;
  AccessibleObjectFromWindow(hwnd, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                             reinterpret_cast<void**>(object.GetAddressOf()));
  AskListing(object.Get());
}

void AskTreeListing(POINT point) {
  MyAccessible::ObjectAndChild found;
  AccessibleObjectFromPoint(point, found.object.GetAddressOf(), found.child.Receive());
  LONG at = found.child.Get().lVal;
  for (bool more = true; more;) {
    const platform::UniqueVariant child(at);
    const BareObject item(found.object.Get(), child.Get());
    item.Name();
    PumpMessages();
    platform::UniqueVariant next;
    more = item.Navigate(NAVDIR_NEXT, next);
    if (more) at = next.Get().lVal;
  }
}

}  // namespace bench
