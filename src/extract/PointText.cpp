#include "extract/PointText.h"

#include <utility>

#include "accessibility/MyAccessible.h"
#include "browser/ElementReaders.h"
#include "extract/ControlText.h"
#include "extract/StringUtilities.h"
#include "extract/Win32API_Window.h"
#include "platform/LineEnd.h"

namespace extract {
namespace {

constexpr std::wstring_view kDocumentClass = L"Internet Explorer_Server";

bool EqualIgnoringCase(std::wstring_view a, std::wstring_view b) {
  return a.size() == b.size() && ContainsIgnoringCase(a, b);
}

TextReading ElementText(const ElementTexts& element) {
  // A list item reports the value 0 although it has none. Odd, and stays: docs/ODDITIES.md.
  const bool listItem = element.value == L"0" && EqualIgnoringCase(element.tagName, L"LI");
  if (element.value.empty() || listItem) return {element.innerText, L"InnerText"};
  return {element.value, L"Value"};
}

class ScreenPoint : public PointSources {
 public:
  ScreenPoint(const platform::ReadPoint& point, bool whole,
              const MyInternetexplore::BrowserAccess& browser,
              const MyInternetexplore::ShowMessage& showMessage)
      : point_(point),
        hwnd_(point.window == nullptr ? WindowFromPoint(point.at) : point.window),
        whole_(whole),
        browser_(browser),
        showMessage_(showMessage) {}

  std::wstring ClassName() override { return Win32API_Window::MyGetClassName(hwnd_); }
  std::optional<ElementTexts> Element() override {
    const MyInternetexplore::ElementPtr element =
        MyInternetexplore::GetElByPos(point_.at.x, point_.at.y, browser_, showMessage_);
    if (!element) return std::nullopt;
    return ElementTexts{MyInternetexplore::GetElValue(element.Get()),
                        MyInternetexplore::GetElTagName(element.Get()),
                        MyInternetexplore::GetElInnerText(element.Get())};
  }
  bool Answers() override { return browser_.messages.Answers(hwnd_); }
  std::wstring AccessibleValue() override {
    return Found() ? MyAccessible::AccValue(found_.object.Get(), found_.child.Get())
                   : std::wstring();
  }
  std::wstring AccessibleName() override {
    return Found() ? MyAccessible::AccName(found_.object.Get(), found_.child.Get())
                   : std::wstring();
  }
  TextReading WindowText() override { return ReadWindowText(hwnd_, whole_); }

 private:
  bool Found() {
    if (!searched_) exists_ = MyAccessible::GetAccessibleObjAt(point_, found_);
    searched_ = true;
    return exists_;
  }

  platform::ReadPoint point_;
  HWND hwnd_;
  bool whole_;
  const MyInternetexplore::BrowserAccess& browser_;
  const MyInternetexplore::ShowMessage& showMessage_;
  bool searched_ = false;
  bool exists_ = false;
  MyAccessible::ObjectAndChild found_;
};

}  // namespace

bool WantsAccessibleValue(std::wstring_view className, std::wstring_view classList) {
  // As text, not entry by entry. Odd, and stays: docs/ODDITIES.md.
  return !classList.empty() && ContainsIgnoringCase(classList, className);
}

TextReading TextAtPoint(PointSources& sources, std::wstring_view classList, bool firstLineOnly) {
  const std::wstring className = sources.ClassName();
  if (EqualIgnoringCase(className, kDocumentClass)) {
    if (const auto element = sources.Element()) {
      TextReading reading = ElementText(*element);
      if (!reading.text.empty()) return reading;
    }
    if (!sources.Answers()) return {};
  }

  std::wstring text;
  if (WantsAccessibleValue(className, classList)) text = sources.AccessibleValue();
  if (text.empty()) text = sources.AccessibleName();
  if (!text.empty()) {
    if (firstLineOnly) text.resize(MinOf(text.find(platform::kCrLf), text.size()));
    return {std::move(text), L"Accessible"};
  }

  return sources.WindowText();
}

TextReading MyGetControlTextFromPoint(int x, int y, std::wstring_view classList, bool firstLineOnly,
                                      const MyInternetexplore::BrowserAccess& browser,
                                      const MyInternetexplore::ShowMessage& showMessage) {
  ScreenPoint sources({{x, y}}, false, browser, showMessage);
  return TextAtPoint(sources, classList, firstLineOnly);
}

TextReading ReadTextAtPoint(const platform::ReadPoint& point, std::wstring_view classList,
                            bool whole, const MyInternetexplore::BrowserAccess& browser,
                            const MyInternetexplore::ShowMessage& showMessage) {
  ScreenPoint sources(point, whole, browser, showMessage);
  return TextAtPoint(sources, classList, false);
}

}  // namespace extract
