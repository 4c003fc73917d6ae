#include "accessibility/MyAccessible.h"

#include <utility>

#include "accessibility/RoleStateWords.h"
#include "platform/ErrorReport.h"
#include "platform/VariantValue.h"

namespace MyAccessible {
namespace {

using TextMember = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT child, BSTR* text);

std::wstring TextOf(IAccessible* object, TextMember member, const VARIANT& child) {
  platform::UniqueBstr text;
  if (FAILED((object->*member)(child, text.Receive()))) return {};
  return text.Text();
}

std::wstring RoleIn(const VARIANT& role) {
  if (role.vt == VT_BSTR) return platform::TextIn(role);
  const std::optional<std::int32_t> number = platform::NumberIn(role);
  return number ? std::to_wstring(*number) : std::wstring();
}

VARIANT MakeLeftOut() {
  VARIANT child{};
  child.vt = VT_ERROR;
  child.scode = DISP_E_PARAMNOTFOUND;
  return child;
}

// The object of the point's window, and the child of it that is hit there.
bool HitIn(const platform::ReadPoint& point, ObjectAndChild& found) {
  found.object = GetAccessibleObj(point.window);
  if (!found.object) return false;
  platform::UniqueVariant hit;
  const bool some = SUCCEEDED(found.object->accHitTest(point.at.x, point.at.y, hit.Receive()));
  *found.child.Receive() = Self();
  if (!some) return true;
  if (AccessiblePtr inner = ObjectIn(hit.Get())) {
    found.object = std::move(inner);
  } else if (hit.Get().vt == VT_I4) {
    *found.child.Receive() = hit.Get();
  }
  return true;
}

}  // namespace

AccessiblePtr GetAccessibleObj(HWND hwnd) {
  AccessiblePtr object;
  if (FAILED(AccessibleObjectFromWindow(hwnd, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                        reinterpret_cast<void**>(object.GetAddressOf())))) {
    return {};
  }
  return object;
}

bool GetAccessibleObjAt(const platform::ReadPoint& point, ObjectAndChild& found) {
  if (point.window != nullptr) return HitIn(point, found);
  const HRESULT result =
      AccessibleObjectFromPoint(point.at, found.object.GetAddressOf(), found.child.Receive());
  return SUCCEEDED(result) && found.object != nullptr;
}

AccessiblePtr ObjectIn(const VARIANT& child) {
  AccessiblePtr object;
  if (child.vt != VT_DISPATCH || child.pdispVal == nullptr) return object;
  if (FAILED(child.pdispVal->QueryInterface(IID_IAccessible,
                                            reinterpret_cast<void**>(object.GetAddressOf())))) {
    return {};
  }
  return object;
}

bool IsSelf(const VARIANT& child) { return child.vt == VT_I4 && child.lVal == CHILDID_SELF; }

const VARIANT& LeftOut() {
  static const VARIANT kLeftOut = MakeLeftOut();
  return kLeftOut;
}

const VARIANT& Self() {
  static const platform::UniqueVariant kSelf(CHILDID_SELF);
  return kSelf.Get();
}

std::wstring AccName(IAccessible* object, const VARIANT& child) {
  return TextOf(object, &IAccessible::get_accName, child);
}

std::wstring AccValue(IAccessible* object, const VARIANT& child) {
  return TextOf(object, &IAccessible::get_accValue, child);
}

std::wstring AccDescription(IAccessible* object, const VARIANT& child) {
  return TextOf(object, &IAccessible::get_accDescription, child);
}

std::wstring AccDefaultAction(IAccessible* object, const VARIANT& child) {
  return TextOf(object, &IAccessible::get_accDefaultAction, child);
}

std::wstring AccKeyboardShortcut(IAccessible* object, const VARIANT& child) {
  return TextOf(object, &IAccessible::get_accKeyboardShortcut, child);
}

std::wstring AccRole(IAccessible* object, const VARIANT& child) {
  platform::UniqueVariant role;
  if (FAILED(object->get_accRole(child, role.Receive()))) return {};
  return RoleIn(role.Get());
}

std::wstring GetAccRoleText(IAccessible* object, const VARIANT& child) {
  platform::UniqueVariant role;
  const HRESULT result = object->get_accRole(child, role.Receive());
  if (FAILED(result)) {
    platform::ReportError(L"GetAccRoleText", {result, platform::SystemDescription(result)});
    return {};
  }
  return RoleWord(RoleIn(role.Get()));
}

std::optional<std::int32_t> AccState(IAccessible* object, const VARIANT& child) {
  platform::UniqueVariant state;
  if (FAILED(object->get_accState(child, state.Receive()))) return std::nullopt;
  return platform::NumberIn(state.Get());
}

std::wstring AccStateText(IAccessible* object, const VARIANT& child) {
  return StateWords(static_cast<std::uint32_t>(AccState(object, child).value_or(0)));
}

std::wstring AccFocus(IAccessible* object) {
  platform::UniqueVariant focus;
  const bool some = SUCCEEDED(object->get_accFocus(focus.Receive())) && focus.Get().vt != VT_EMPTY;
  return some ? L"1" : L"0";
}

Location AccLocation(IAccessible* object, const VARIANT& child) {
  long left = 0;
  long top = 0;
  long width = 0;
  long height = 0;
  if (FAILED(object->accLocation(&left, &top, &width, &height, child))) return {};
  return {left, top, width, height};
}

AccessiblePtr AccParent(IAccessible* object) {
  Microsoft::WRL::ComPtr<IDispatch> dispatch;
  AccessiblePtr parent;
  if (FAILED(object->get_accParent(dispatch.GetAddressOf())) || !dispatch) return parent;
  if (FAILED(dispatch.As(&parent))) return {};
  return parent;
}

std::wstring AccChildCount(IAccessible* object) {
  long count = 0;
  if (FAILED(object->get_accChildCount(&count))) return {};
  return std::to_wstring(count);
}

std::wstring ChildCountText(IAccessible* object, const VARIANT& child) {
  if (const AccessiblePtr held = ObjectIn(child)) return AccChildCount(held.Get());
  if (child.vt != VT_I4) return {};
  return IsSelf(child) ? AccChildCount(object) : L"0";
}

std::int32_t ChildId(const VARIANT& child) { return child.vt == VT_I4 ? child.lVal : 0; }

std::wstring GetObjectType(IAccessible* object, const VARIANT& child) {
  if (const AccessiblePtr held = ObjectIn(child)) {
    const std::wstring count = AccChildCount(held.Get());
    if (count.empty()) return {};
    return count == L"0" ? L"Real Object" : L"Container";
  }
  if (child.vt == VT_EMPTY) return {};
  if (!IsSelf(child)) return L"Simple Element";
  // A container also with 0 children. Odd, and stays: docs/ODDITIES.md.
  return ChildCountText(object, child).empty() ? L"Real Object" : L"Container";
}

std::wstring AccNameOfWindow(HWND hwnd) {
  const AccessiblePtr object = GetAccessibleObj(hwnd);
  return object ? AccName(object.Get(), Self()) : std::wstring();
}

}  // namespace MyAccessible
