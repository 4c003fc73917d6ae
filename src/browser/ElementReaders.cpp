#include "browser/ElementReaders.h"

#include <algorithm>

#include "platform/ComOwners.h"
#include "platform/LineEnd.h"
#include "platform/VariantValue.h"

namespace MyInternetexplore {
namespace {

template <typename Object>
using TextMember = HRESULT (STDMETHODCALLTYPE Object::*)(BSTR* text);

template <typename Object>
std::wstring TextOf(Object* object, TextMember<Object> member) {
  platform::UniqueBstr text;
  if (FAILED((object->*member)(text.Receive()))) return {};
  return text.Text();
}

std::wstring TextByName(IDispatch* object, const wchar_t* name) {
  platform::UniqueVariant value;
  if (FAILED(GetByName(object, name, value.Receive()))) return {};
  return platform::TextIn(value.Get());
}

std::wstring Attribute(IHTMLElement* element, const wchar_t* name) {
  const platform::UniqueBstr argument(name);
  platform::UniqueVariant value;
  if (FAILED(element->getAttribute(argument.Get(), 0, value.Receive()))) return {};
  return platform::TextIn(value.Get());
}

std::wstring AncestorText(IHTMLElement* element, int levels, TextMember<IHTMLElement> member) {
  if (levels > kMostLevels) return {};
  ElementPtr ancestor = element;
  for (int i = 0; i < levels && ancestor; ++i) ancestor = GetElParent(ancestor.Get());
  return ancestor ? TextOf(ancestor.Get(), member) : std::wstring();
}

}  // namespace

HRESULT GetByName(IDispatch* object, const wchar_t* name, VARIANT* value) {
  auto* nameArgument = const_cast<wchar_t*>(name);  // only read
  DISPID member = DISPID_UNKNOWN;
  const HRESULT known =
      object->GetIDsOfNames(IID_NULL, &nameArgument, 1, LOCALE_USER_DEFAULT, &member);
  if (FAILED(known)) return known;
  DISPPARAMS none{};
  return object->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, value,
                        nullptr, nullptr);
}

std::wstring GetElTagName(IHTMLElement* element) {
  return TextOf(element, &IHTMLElement::get_tagName);
}

std::wstring UpperTagName(IHTMLElement* element) {
  std::wstring tag = GetElTagName(element);
  CharUpperBuffW(tag.data(), static_cast<DWORD>(tag.size()));
  return tag;
}

std::wstring GetElIdOrName(IHTMLElement* element) {
  std::wstring id = TextOf(element, &IHTMLElement::get_id);
  return id.empty() ? TextByName(element, L"name") : id;
}

std::wstring GetElType(IHTMLElement* element) { return Attribute(element, L"type"); }

std::wstring GetElValue(IHTMLElement* element) { return Attribute(element, L"value"); }

std::wstring GetElInnerText(IHTMLElement* element) {
  return TextOf(element, &IHTMLElement::get_innerText);
}

std::wstring StartOfInnerText(IHTMLElement* element, std::size_t mostCharacters) {
  platform::UniqueBstr whole;
  if (FAILED(element->get_innerText(whole.Receive()))) return {};
  const std::wstring_view text = whole.View();
  std::wstring start;
  std::size_t i = 0;
  while (i < text.size() && start.size() < mostCharacters) {
    const std::size_t end = std::min(text.find(platform::kCrLf, i), text.size());
    start += text.substr(i, std::min(end - i, mostCharacters - start.size()));
    i = end + 2;
  }
  return start;
}

ElementPtr GetElParent(IHTMLElement* element) {
  ElementPtr parent;
  if (FAILED(element->get_parentElement(parent.GetAddressOf()))) return {};
  return parent;
}

DocumentPtr GetElDocument(IHTMLElement* element) {
  Microsoft::WRL::ComPtr<IDispatch> object;
  DocumentPtr document;
  if (FAILED(element->get_document(object.GetAddressOf())) || !object) return {};
  if (FAILED(object.As(&document))) return {};
  return document;
}

std::wstring GetAncestorInnerText(IHTMLElement* element, int levels) {
  return AncestorText(element, levels, &IHTMLElement::get_innerText);
}

std::wstring GetAncestorInnerHtml(IHTMLElement* element, int levels) {
  return AncestorText(element, levels, &IHTMLElement::get_innerHTML);
}

DocumentPtr GetParentDocument(IHTMLDocument2* document) {
  WindowPtr window;
  WindowPtr parent;
  DocumentPtr around;
  if (FAILED(document->get_parentWindow(window.GetAddressOf())) || !window) return {};
  if (FAILED(window->get_parent(parent.GetAddressOf())) || !parent) return {};
  if (FAILED(parent->get_document(around.GetAddressOf()))) return {};
  return around;
}

ElementPtr GetBody(IHTMLDocument2* document) {
  ElementPtr body;
  if (FAILED(document->get_body(body.GetAddressOf()))) return {};
  return body;
}

std::wstring GetUrl(IHTMLDocument2* document) { return TextOf(document, &IHTMLDocument2::get_URL); }

}  // namespace MyInternetexplore
