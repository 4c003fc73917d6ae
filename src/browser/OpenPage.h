// The page in a browser's window, read for a report.
#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <memory>

#include "browser/MyInternetexplore.h"
#include "browser/PageReader.h"

namespace MyInternetexplore {

struct PageOptions {
  std::int32_t startNode = 0;  // levels above the element at which its texts are taken
  std::size_t mostText = 0;    // characters of the displayed text in each row
};

// The page of a browser's content window and its element at the read point (screen pixels); null
// when the window has no document.
std::unique_ptr<PageReader> OpenPage(HWND hwnd, POINT readPoint, const PageOptions& options,
                                     const BrowserAccess& access);

}  // namespace MyInternetexplore
