// The members of elements and documents, one small function each. A member that fails or that is
// not there is an empty text or nothing, and nobody is told.
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

// The start of the displayed text with every CR LF removed: mostCharacters of it. Pages can be
// huge, and a table shows the first characters only.
std::wstring StartOfInnerText(IHTMLElement* element, std::size_t mostCharacters);

ElementPtr GetElParent(IHTMLElement* element);
DocumentPtr GetElDocument(IHTMLElement* element);

// innerText and innerHTML of the ancestor so many levels up, of the element itself for 0 and less;
// empty when there is no such ancestor.
std::wstring GetAncestorInnerText(IHTMLElement* element, int levels);
std::wstring GetAncestorInnerHtml(IHTMLElement* element, int levels);

// The document of the enclosing page; for the topmost one that is itself.
DocumentPtr GetParentDocument(IHTMLDocument2* document);
ElementPtr GetBody(IHTMLDocument2* document);
std::wstring GetUrl(IHTMLDocument2* document);

// Reads a property by its name: not all elements have it. Fails as the object does.
HRESULT GetByName(IDispatch* object, const wchar_t* name, VARIANT* value);

}  // namespace MyInternetexplore
