#include <idispids.h>
#include <mshtmdid.h>

#include "Page.h"

namespace html {
namespace {

std::string LabelOf(const ElementData& data) {
  const std::string tag = Narrow(data.tag);
  if (!data.id.empty()) return tag + "#" + Narrow(data.id);
  return data.name.value_or(L"").empty() ? tag : tag + "@" + Narrow(*data.name);
}

HRESULT GiveAttribute(const Attribute& attribute, VARIANT* answer) {
  answer->vt = VT_NULL;
  if (const auto* const text = std::get_if<std::wstring>(&attribute)) Give(NewText(*text), answer);
  if (const auto* const number = std::get_if<LONG>(&attribute)) Give(*number, answer);
  return S_OK;
}

Attribute TextOrNull(const std::wstring& text) {
  return text.empty() ? Attribute() : Attribute(text);
}

}  // namespace

std::span<const Rectangle::Member> Rectangle::Members() {
  static constexpr Member kMembers[] = {
      {L"left", DISPID_IHTMLRECT_LEFT, Read<&Rectangle::get_left>},
      {L"top", DISPID_IHTMLRECT_TOP, Read<&Rectangle::get_top>},
      {L"right", DISPID_IHTMLRECT_RIGHT, Read<&Rectangle::get_right>},
      {L"bottom", DISPID_IHTMLRECT_BOTTOM, Read<&Rectangle::get_bottom>},
  };
  return kMembers;
}

void* Rectangle::Offer(REFIID id) {
  if (id == IID_IUnknown || id == IID_IDispatch || id == IID_IHTMLRect) {
    return static_cast<IHTMLRect*>(this);
  }
  return nullptr;
}

HRESULT Rectangle::Edge(const char* name, LONG edge, LONG* answer) {
  *answer = 0;
  if (const HRESULT failure = Enter(name); failure != S_OK) return failure;
  *answer = edge;
  return S_OK;
}

HRESULT Rectangle::get_left(LONG* left) { return Edge("left", place_.left, left); }
HRESULT Rectangle::get_top(LONG* top) { return Edge("top", place_.top, top); }
HRESULT Rectangle::get_right(LONG* right) { return Edge("right", place_.right, right); }
HRESULT Rectangle::get_bottom(LONG* bottom) { return Edge("bottom", place_.bottom, bottom); }

std::span<const Element::Member> Element::Members() {
  static constexpr Member kMembers[] = {
      {L"id", DISPID_IHTMLELEMENT_ID, Read<&Element::get_id>},
      {L"tagName", DISPID_IHTMLELEMENT_TAGNAME, Read<&Element::get_tagName>},
      {L"innerText", DISPID_IHTMLELEMENT_INNERTEXT, Read<&Element::get_innerText>},
      {L"innerHTML", DISPID_IHTMLELEMENT_INNERHTML, Read<&Element::get_innerHTML>},
      {L"parentElement", DISPID_IHTMLELEMENT_PARENTELEMENT, Read<&Element::get_parentElement>},
      {L"document", DISPID_IHTMLELEMENT_DOCUMENT, Read<&Element::get_document>},
      {L"name", DISPID_IHTMLINPUTELEMENT_NAME, &Element::Name},
      {L"type", DISPID_IHTMLINPUTELEMENT_TYPE, &Element::Type},
      {L"value", DISPID_IHTMLINPUTELEMENT_VALUE, &Element::Value},
  };
  return kMembers;
}

Element::Element(Watch& watch, ElementData data, Document& ofDocument, Element* parentElement)
    : ScriptObject(watch, LabelOf(data)),
      document(&ofDocument),
      parent(data.orphan ? nullptr : parentElement),
      data_(std::move(data)),
      rectangle_(watch, Label(), data_.place) {}

void* Element::Offer(REFIID id) {
  if (id == IID_IHTMLElement2) return static_cast<IHTMLElement2*>(this);
  if (id == IID_IUnknown || id == IID_IDispatch || id == IID_IHTMLElement) {
    return static_cast<IHTMLElement*>(this);
  }
  return nullptr;
}

bool Element::Knows(const Member& member) const {
  if (member.get == &Element::Name) return data_.name.has_value();
  if (member.get == &Element::Type) return data_.type.index() != 0;
  if (member.get == &Element::Value) return data_.value.index() != 0;
  return true;
}

Element* Element::At(LONG x, LONG y) {
  for (std::size_t i = children.size(); i-- > 0;) {
    if (Element* const found = children[i]->At(x, y)) return found;
  }
  return PtInRect(&data_.place, {x, y}) ? this : nullptr;
}

HRESULT Element::Text(const char* member, const std::wstring& text, BSTR* answer) {
  *answer = nullptr;
  if (const HRESULT failure = Enter(member); failure != S_OK) return failure;
  *answer = NewText(text);
  return S_OK;
}

HRESULT Element::get_tagName(BSTR* text) { return Text("tagName", data_.tag, text); }
HRESULT Element::get_id(BSTR* text) { return Text("id", data_.id, text); }
HRESULT Element::get_innerText(BSTR* text) { return Text("innerText", data_.text, text); }
HRESULT Element::get_innerHTML(BSTR* text) { return Text("innerHTML", data_.markup, text); }

HRESULT Element::get_parentElement(IHTMLElement** element) {
  *element = nullptr;
  if (const HRESULT failure = Enter("parentElement"); failure != S_OK) return failure;
  if (parent != nullptr) parent->AddRef();
  *element = parent;
  return S_OK;
}

HRESULT Element::get_document(IDispatch** object) {
  *object = nullptr;
  if (const HRESULT failure = Enter("document"); failure != S_OK) return failure;
  document->AddRef();
  *object = document;
  return S_OK;
}

HRESULT Element::getAttribute(BSTR name, LONG, VARIANT* answer) {
  VariantInit(answer);
  const std::wstring asked = name == nullptr ? std::wstring() : name;
  if (const HRESULT failure = Enter("getAttribute", Narrow(asked)); failure != S_OK) return failure;
  const auto is = [&](const wchar_t* known) { return lstrcmpiW(asked.c_str(), known) == 0; };
  if (is(L"type")) return GiveAttribute(data_.type, answer);
  if (is(L"value")) return GiveAttribute(data_.value, answer);
  if (is(L"id")) return GiveAttribute(TextOrNull(data_.id), answer);
  if (is(L"name")) return GiveAttribute(TextOrNull(data_.name.value_or(L"")), answer);
  return GiveAttribute({}, answer);
}

HRESULT Element::getBoundingClientRect(IHTMLRect** rectangle) {
  *rectangle = nullptr;
  if (const HRESULT failure = Enter("getBoundingClientRect"); failure != S_OK) return failure;
  rectangle_.AddRef();
  *rectangle = &rectangle_;
  return S_OK;
}

HRESULT Element::Name(Element& element, VARIANT* answer) {
  if (const HRESULT failure = element.Enter("name"); failure != S_OK) return failure;
  Give(NewText(*element.data_.name), answer);
  return S_OK;
}

HRESULT Element::Type(Element& element, VARIANT* answer) {
  if (const HRESULT failure = element.Enter("type"); failure != S_OK) return failure;
  return GiveAttribute(element.data_.type, answer);
}

HRESULT Element::Value(Element& element, VARIANT* answer) {
  if (const HRESULT failure = element.Enter("value"); failure != S_OK) return failure;
  return GiveAttribute(element.data_.value, answer);
}

}  // namespace html
