#include "AccessibleNode.h"

#include <climits>

namespace accessible {
namespace {

std::string ChildWord(const VARIANT& child) {
  if (child.vt == VT_I4) return std::to_string(child.lVal);
  return child.vt == VT_ERROR && child.scode == DISP_E_PARAMNOTFOUND ? "-" : "?";
}

bool Contains(const RECT& place, long x, long y) {
  return x >= place.left && y >= place.top && x - place.left < place.right &&
         y - place.top < place.bottom;
}

}  // namespace

HRESULT Node::QueryInterface(REFIID id, void** object) {
  *object = nullptr;
  if (id == IID_IEnumVARIANT && enumerates) {
    *object = static_cast<IEnumVARIANT*>(this);
  } else if (id == IID_IUnknown || id == IID_IDispatch || id == IID_IAccessible) {
    *object = static_cast<IAccessible*>(this);
  } else {
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

HRESULT Node::Enter(const char* member, const std::string& detail) {
  calls.push_back(detail.empty() ? member : std::string(member) + " " + detail);
  if (onCall) onCall(member);
  for (const char* const name : {member, ""}) {
    const auto failure = failures.find(name);
    if (failure != failures.end()) return failure->second;
  }
  return S_OK;
}

HRESULT Node::Enter(const char* member, const VARIANT& child) {
  return Enter(member, ChildWord(child));
}

const Members* Node::Of(const VARIANT& child) const {
  if (child.vt == VT_ERROR || answersEveryChild) return &own_;
  if (child.vt != VT_I4 || child.lVal < 0) return nullptr;
  if (child.lVal == CHILDID_SELF) return &own_;
  const auto index = static_cast<std::size_t>(child.lVal) - 1;
  if (index >= children_.size() || children_[index].object != nullptr) return nullptr;
  return &children_[index].element;
}

HRESULT Node::Text(const char* member, const VARIANT& child, std::wstring Members::*text,
                   BSTR* answer) {
  *answer = nullptr;
  if (const HRESULT failure = Enter(member, child); failure != S_OK) return failure;
  const Members* const members = Of(child);
  if (members == nullptr) return E_INVALIDARG;
  const std::wstring& value = members->*text;
  if (value.empty()) return S_FALSE;
  *answer = SysAllocStringLen(value.data(), static_cast<UINT>(value.size()));
  return S_OK;
}

HRESULT Node::get_accParent(IDispatch** parentObject) {
  *parentObject = nullptr;
  if (const HRESULT failure = Enter("accParent", ""); failure != S_OK) return failure;
  if (parent == nullptr) return S_FALSE;
  parent->AddRef();
  *parentObject = parent;
  return S_OK;
}

HRESULT Node::get_accChildCount(long* count) {
  *count = 0;
  if (const HRESULT failure = Enter("accChildCount", ""); failure != S_OK) return failure;
  *count = claimedChildren >= 0 ? claimedChildren : static_cast<long>(children_.size());
  return S_OK;
}

HRESULT Node::get_accChild(VARIANT child, IDispatch** object) {
  *object = nullptr;
  if (const HRESULT failure = Enter("accChild", child); failure != S_OK) return failure;
  const auto index = static_cast<std::size_t>(child.lVal) - 1;
  if (child.vt != VT_I4 || index >= children_.size()) return E_INVALIDARG;
  Node* const held = children_[index].object;
  if (held == nullptr) return S_FALSE;
  held->AddRef();
  *object = held;
  return S_OK;
}

HRESULT Node::get_accName(VARIANT child, BSTR* text) {
  return Text("accName", child, &Members::name, text);
}

HRESULT Node::get_accValue(VARIANT child, BSTR* text) {
  return Text("accValue", child, &Members::value, text);
}

HRESULT Node::get_accDescription(VARIANT child, BSTR* text) {
  return Text("accDescription", child, &Members::description, text);
}

HRESULT Node::get_accKeyboardShortcut(VARIANT child, BSTR* text) {
  return Text("accKeyboardShortcut", child, &Members::keyboardShortcut, text);
}

HRESULT Node::get_accDefaultAction(VARIANT child, BSTR* text) {
  return Text("accDefaultAction", child, &Members::defaultAction, text);
}

HRESULT Node::get_accRole(VARIANT child, VARIANT* role) {
  VariantInit(role);
  if (const HRESULT failure = Enter("accRole", child); failure != S_OK) return failure;
  const Members* const members = Of(child);
  if (members == nullptr) return E_INVALIDARG;
  if (members->roleText.empty()) {
    role->vt = VT_I4;
    role->lVal = members->role;
  } else {
    role->vt = VT_BSTR;
    role->bstrVal = SysAllocString(members->roleText.c_str());
  }
  return S_OK;
}

HRESULT Node::get_accState(VARIANT child, VARIANT* state) {
  VariantInit(state);
  if (const HRESULT failure = Enter("accState", child); failure != S_OK) return failure;
  const Members* const members = Of(child);
  if (members == nullptr) return E_INVALIDARG;
  state->vt = VT_I4;
  state->lVal = members->state;
  return S_OK;
}

HRESULT Node::get_accFocus(VARIANT* child) {
  VariantInit(child);
  if (const HRESULT failure = Enter("accFocus", ""); failure != S_OK) return failure;
  if (!hasFocus) return S_FALSE;
  child->vt = VT_I4;
  child->lVal = CHILDID_SELF;
  return S_OK;
}

void Node::Perform(const std::string& action) {
  actions.push_back(action);
  if (onAction) onAction(action);
}

HRESULT Node::accSelect(long flags, VARIANT child) {
  if (const HRESULT failure = Enter("accSelect", child); failure != S_OK) return failure;
  if (Of(child) == nullptr) return E_INVALIDARG;
  Perform("select " + std::to_string(flags) + " " + ChildWord(child));
  return S_OK;
}

HRESULT Node::accDoDefaultAction(VARIANT child) {
  if (const HRESULT failure = Enter("accDoDefaultAction", child); failure != S_OK) return failure;
  if (Of(child) == nullptr) return E_INVALIDARG;
  Perform("default " + ChildWord(child));
  return S_OK;
}

HRESULT Node::accLocation(long* left, long* top, long* width, long* height, VARIANT child) {
  *left = *top = *width = *height = 0;
  if (const HRESULT failure = Enter("accLocation", child); failure != S_OK) return failure;
  const Members* const members = Of(child);
  if (members == nullptr) return E_INVALIDARG;
  *left = members->place.left;
  *top = members->place.top;
  *width = members->place.right;
  *height = members->place.bottom;
  return S_OK;
}

long Node::NumberOf(const Node& child) const {
  for (std::size_t i = 0; i < children_.size(); ++i) {
    if (children_[i].object == &child) return static_cast<long>(i) + 1;
  }
  return 0;
}

HRESULT Node::GiveChild(long number, VARIANT* child) {
  const auto index = static_cast<std::size_t>(number) - 1;
  if (!answersEveryChild && index >= children_.size()) return S_FALSE;
  if (index < children_.size() && children_[index].object != nullptr) {
    children_[index].object->AddRef();
    child->vt = VT_DISPATCH;
    child->pdispVal = children_[index].object;
  } else {
    child->vt = VT_I4;
    child->lVal = number;
  }
  return S_OK;
}

HRESULT Node::Next(ULONG count, VARIANT* children, ULONG* fetched) {
  ULONG given = 0;
  for (; given < count && next_ < children_.size(); ++given) {
    GiveChild(static_cast<long>(++next_), &children[given]);
  }
  if (fetched != nullptr) *fetched = given;
  return given == count ? S_OK : S_FALSE;
}

HRESULT Node::Skip(ULONG count) {
  next_ += count;
  return next_ <= children_.size() ? S_OK : S_FALSE;
}

HRESULT Node::Reset() {
  next_ = 0;
  return S_OK;
}

HRESULT Node::accNavigate(long direction, VARIANT start, VARIANT* end) {
  VariantInit(end);
  if (const HRESULT failure = Enter("accNavigate", start); failure != S_OK) return failure;
  if (direction != NAVDIR_NEXT && direction != NAVDIR_PREVIOUS) return E_NOTIMPL;
  if (start.vt != VT_I4) return E_INVALIDARG;
  // Any number may come, also one without a neighbour.
  const auto beside = [direction](long number) {
    const long last = direction == NAVDIR_NEXT ? LONG_MAX : LONG_MIN;
    return number == last ? number : number + (direction == NAVDIR_NEXT ? 1 : -1);
  };
  if (start.lVal != CHILDID_SELF) return GiveChild(beside(start.lVal), end);
  return parent == nullptr ? S_FALSE : parent->GiveChild(beside(parent->NumberOf(*this)), end);
}

HRESULT Node::accHitTest(long left, long top, VARIANT* child) {
  VariantInit(child);
  if (const HRESULT failure = Enter("accHitTest", ""); failure != S_OK) return failure;
  for (std::size_t i = 0; i < children_.size(); ++i) {
    const Child& one = children_[i];
    const RECT& place = one.object != nullptr ? one.object->own_.place : one.element.place;
    if (Contains(place, left, top)) return GiveChild(static_cast<long>(i) + 1, child);
  }
  child->vt = VT_I4;
  child->lVal = CHILDID_SELF;
  return S_OK;
}

}  // namespace accessible
