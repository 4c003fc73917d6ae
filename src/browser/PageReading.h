// The page in a browser's window, read for a report.
#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>

#include "browser/MyInternetexplore.h"
#include "browser/PageFacts.h"
#include "platform/ReadSession.h"

namespace MyInternetexplore {

struct PageRequest {
  HWND hwnd;                   // a browser's content window
  POINT readPoint;             // screen pixels
  std::int32_t startNode = 0;  // levels above the element at which its texts are taken
  std::size_t mostText = 0;    // characters of the displayed text in each row
  ShowMessage showMessage;     // gets the errors of the search for the element
  std::function<void(const PageTexts&)> textsRead;  // called before the elements are read
};

// The page's address and the elements around the read point; nothing when the window has no
// document. Yields after every element, and stops when the pointer has left or the capture ends.
std::optional<PageFacts> ReadPage(const PageRequest& request, const BrowserAccess& access,
                                  const platform::ReadSession& session);

}  // namespace MyInternetexplore
