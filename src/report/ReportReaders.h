// Everything that a report reads from other programs. Tests replace it by a recorder.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "browser/PageFacts.h"
#include "platform/Interface.h"
#include "platform/ReadSession.h"
#include "report/ControlReading.h"
#include "report/WindowInformation.h"

namespace report {

// The report on an accessible object, and its name.
struct AccessibleTexts {
  std::wstring report;
  std::wstring name;
};

// What a page is read with.
struct PageRead {
  HWND documentWindow;
  POINT point;  // screen pixels
  const platform::ReadSession& session;
  std::function<void(const std::wstring&)> showMessage;  // shows other messages to the user
  std::function<void(const MyInternetexplore::PageTexts&)> textsRead;  // before the elements
};

class ReportReaders : public platform::Interface {
 public:
  // Whether the system knows that the window's thread does not answer. Sends nothing.
  virtual bool IsHung(HWND hwnd) = 0;
  // Whether the window's program runs as administrator and this one does not.
  virtual bool IsOutOfReach(HWND hwnd) = 0;

  virtual WindowFacts Facts(HWND hwnd) = 0;
  // These facts, with the window's owner, ancestors and visible descendants.
  virtual WindowInformation Information(const WindowFacts& window) = 0;

  // The text at the point: of the object there, or the window's own accessible name. showMessage
  // shows other messages to the user.
  virtual extract::TextReading TextFromPoint(
      const platform::ReadPoint& point,
      const std::function<void(const std::wstring&)>& showMessage) = 0;
  virtual std::wstring NameOfWindow(HWND hwnd) = 0;

  // The list text of a window of that category.
  virtual extract::TextReading Control(Category category, const ControlRead& read) = 0;

  // The page in a browser's window; nothing when there is no document.
  virtual std::optional<MyInternetexplore::PageFacts> Page(const PageRead& read) = 0;
  // Whether the window of a browser answers messages; waits for some seconds at most, and not again
  // soon.
  virtual bool Answers(HWND hwnd) = 0;

  // The accessible object of the window, or, when that is null, at the point.
  virtual AccessibleTexts Accessible(const WindowFacts* window, const platform::ReadPoint& point,
                                     const platform::ReadSession& session) = 0;

  // The text of the status bar that belongs to the window.
  virtual std::wstring StatusText(const WindowFacts& window) = 0;
};

}  // namespace report
