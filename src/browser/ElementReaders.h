// The members of elements and documents, one small function each. A member that fails or does not
// exist gives an empty text or nothing, without a message.
#pragma once

#include <string>

#include "browser/Interfaces.h"

namespace MyInternetexplore {

std::wstring GetElTagName(IHTMLElement* element);
std::wstring UpperTagName(IHTMLElement* element);  // in upper case
// The id; when that is empty, the name.
std::wstring GetElIdOrName(IHTMLElement* element);
// Attributes; numbers come as decimal text.
std::wstring GetElType(IHTMLElement* element);
std::wstring GetElValue(IHTMLElement* element);
std::wstring GetElInnerText(IHTMLElement* element);

// The start of the displayed text with every CR LF removed, at most mostCharacters. Pages can be
// huge, and a table shows only the first characters.
std::wstring StartOfInnerText(IHTMLElement* element, std::size_t mostCharacters);

ElementPtr GetElParent(IHTMLElement* element);
DocumentPtr GetElDocument(IHTMLElement* element);

// innerText and innerHTML of the ancestor that is levels above the element, of the element itself
// for 0 and less; empty when there is no such ancestor.
std::wstring GetAncestorInnerText(IHTMLElement* element, int levels);
std::wstring GetAncestorInnerHtml(IHTMLElement* element, int levels);

// The document of the enclosing page; for the topmost page its own document.
DocumentPtr GetParentDocument(IHTMLDocument2* document);
ElementPtr GetBody(IHTMLDocument2* document);
std::wstring GetUrl(IHTMLDocument2* document);

// Reads a property by its name, because not all elements have it. Returns the object's error.
HRESULT GetByName(IDispatch* object, const wchar_t* name, VARIANT* value);

}  // namespace MyInternetexplore
