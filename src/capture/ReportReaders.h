// Everything that a report reads from other programs. Tests put a recorder in its place.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "browser/PageReader.h"
#include "capture/ControlCategory.h"
#include "capture/WindowInformation.h"
#include "platform/ReadSession.h"
#include "settings/Settings.h"

namespace capture {

// What a category's reader works on.
struct CategoryRead {
  HWND hwnd;    // noted when the report began
  POINT point;  // likewise, in screen pixels
  platform::ReadSession& session;
  std::wstring& method;  // out: how the text was got
};

// The report on an accessible object, and its name.
struct AccessibleTexts {
  std::wstring report;
  std::wstring name;
};

class ReportReaders {
 public:
  virtual ~ReportReaders() = default;

  virtual WindowFacts Facts(HWND hwnd) = 0;
  // These facts with what is around the window: owner, ancestors, visible descendants.
  virtual WindowInformation Information(const WindowFacts& window) = 0;

  // The text at the point: of the object there, or the window's own accessible name. showMessage
  // is for what the user should know besides.
  virtual std::wstring TextFromPoint(
      POINT point, std::wstring& method,
      const std::function<void(const std::wstring&)>& showMessage) = 0;
  virtual std::wstring NameOfWindow(HWND hwnd) = 0;

  // One a category.
  virtual std::wstring MyGetEditItem(const CategoryRead& read) = 0;
  virtual std::wstring MyGetListBoxItem(const CategoryRead& read) = 0;
  virtual std::wstring MyGetComboBoxItem(const CategoryRead& read) = 0;
  virtual std::wstring AccessibleChildren(const CategoryRead& read) = 0;
  virtual std::wstring GetListViewItem(const CategoryRead& read) = 0;
  virtual std::wstring AccessibleTree(const CategoryRead& read) = 0;
  virtual std::wstring GetToolbarItem(const CategoryRead& read) = 0;
  virtual std::wstring GetTabControlItem(const CategoryRead& read) = 0;
  virtual std::wstring GetTooltipText(const CategoryRead& read) = 0;
  virtual std::wstring GetOther(const CategoryRead& read) = 0;
  virtual std::wstring GetChildText(const CategoryRead& read) = 0;

  // The page in a browser's window and its element at the point; null when there is no document.
  virtual std::unique_ptr<MyInternetexplore::PageReader> Page(HWND documentWindow, POINT point) = 0;
  // Whether the window of a browser answers messages; waits 2 s at most, and not again soon.
  virtual bool Answers(HWND hwnd) = 0;

  // The accessible object of the window hwnd, or, when that is null, at the point.
  virtual AccessibleTexts Accessible(HWND hwnd, POINT point,
                                     const platform::ReadSession& session) = 0;

  virtual std::wstring StatusText(HWND target, std::wstring_view className,
                                  std::wstring_view title) = 0;
};

// The list text of a window of this category; empty for the categories that have no reader.
std::wstring ReadByCategory(ReportReaders& readers, Category category, const CategoryRead& read);

}  // namespace capture
