// The text at a point of the screen, and which source it is taken from.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>

#include "browser/MyInternetexplore.h"
#include "extract/TextReading.h"
#include "platform/Interface.h"
#include "platform/ReadPoint.h"

namespace extract {

// The element of a browser document at the point.
struct ElementTexts {
  std::wstring value;
  std::wstring tagName;
  std::wstring innerText;
};

// The sources of the text at one point. Tests replace them.
class PointSources : public platform::Interface {
 public:
  virtual std::wstring ClassName() = 0;  // of the window at the point
  virtual std::optional<ElementTexts> Element() = 0;
  virtual bool Answers() = 0;  // whether the window answers messages
  virtual std::wstring AccessibleValue() = 0;
  virtual std::wstring AccessibleName() = 0;
  virtual TextReading WindowText() = 0;  // by WM_GETTEXT
};

// Whether the accessible value is read first: className occurs anywhere in classList, without
// regard to case. An empty class name occurs in every list but an empty one.
bool WantsAccessibleValue(std::wstring_view className, std::wstring_view classList);

// The text at the point. A browser's window that hangs has none, and nothing else is read of it.
// The method is "Value", "InnerText", "Accessible" or "WM_GETTEXT", or empty when there is no text.
// firstLineOnly cuts an accessible text before its first CR LF.
TextReading TextAtPoint(PointSources& sources, std::wstring_view classList, bool firstLineOnly);

// TextAtPoint of the screen point (x, y) in pixels. classList is the setting "accValue text".
// showMessage gets messages about a page.
TextReading MyGetControlTextFromPoint(int x, int y, std::wstring_view classList, bool firstLineOnly,
                                      const MyInternetexplore::BrowserAccess& browser,
                                      const MyInternetexplore::ShowMessage& showMessage);

// The same at a read point, with every line. whole: the window's own text is read to its end, not
// only its first 4095 characters.
TextReading ReadTextAtPoint(const platform::ReadPoint& point, std::wstring_view classList,
                            bool whole, const MyInternetexplore::BrowserAccess& browser,
                            const MyInternetexplore::ShowMessage& showMessage);

}  // namespace extract
