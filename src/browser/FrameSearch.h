// The frames of a document. Failures throw platform::NumberedError, which ends a descent at once.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "browser/Interfaces.h"

namespace MyInternetexplore {

// Throws when the call failed.
void Require(HRESULT result);

// The first frame for which isIt returns true, in the order of the document; empty when there is
// none.
WindowPtr FindFrame(IHTMLDocument2* document, const std::function<bool(IHTMLWindow2*)>& isIt);

// Searches the frames by their names: equal texts, or equal as variants (a text and an empty
// variant are equal when the text is empty, nothing equals null). A frame without a name has an
// empty one, so an unnamed frame element finds the first unnamed frame. Odd, and stays:
// docs/ODDITIES.md.
WindowPtr FindFrameNamed(IHTMLDocument2* document, const std::wstring& name);
WindowPtr FindFrameNamed(IHTMLDocument2* document, const VARIANT& name);

// Whether both are the same COM object, whichever interfaces they are held by.
bool IsSame(IUnknown* a, IUnknown* b);

}  // namespace MyInternetexplore
