// The text at a point of the screen: which of the sources that can give one is believed.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>

#include "browser/MyInternetexplore.h"

namespace extract {

// The element of a browser document at the point.
struct ElementTexts {
  std::wstring value;
  std::wstring tagName;
  std::wstring innerText;
};

// Where texts at one point come from. Tests put their own in place.
class PointSources {
 public:
  virtual ~PointSources() = default;

  virtual std::wstring ClassName() = 0;  // of the window at the point
  virtual std::optional<ElementTexts> Element() = 0;
  virtual bool Answers() = 0;  // whether the window answers messages
  virtual std::wstring AccessibleValue() = 0;
  virtual std::wstring AccessibleName() = 0;
  virtual std::wstring WindowText() = 0;  // by WM_GETTEXT
};

// Whether the accessible value is asked for first: className occurs anywhere in classList, without
// regard to case. An empty class name occurs in every list but an empty one.
bool WantsAccessibleValue(std::wstring_view className, std::wstring_view classList);

// The text at the point. A browser's window that hangs has none: it is asked nothing more. method
// becomes "Value", "InnerText", "Accessible" or "WM_GETTEXT", or
// empty when there is no text. firstLineOnly cuts an accessible text before its first CR LF.
std::wstring TextAtPoint(PointSources& sources, std::wstring_view classList, bool firstLineOnly,
                         std::wstring& method);

// TextAtPoint of the screen point (x, y) in pixels. classList is the setting "accValue text". What
// the user should know about a page is said in showMessage.
std::wstring MyGetControlTextFromPoint(int x, int y, std::wstring_view classList,
                                       bool firstLineOnly, std::wstring& method,
                                       const MyInternetexplore::BrowserAccess& browser,
                                       const MyInternetexplore::ShowMessage& showMessage);

}  // namespace extract
