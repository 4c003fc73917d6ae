// Queries of a test to the browser fixture's document window.
#pragma once

#include <windows.h>

namespace html {

// How many references others hold to objects of the page.
inline constexpr UINT kReferences = WM_APP + 1;

// How many members were called so far, and how often the document was requested.
inline constexpr UINT kCalls = WM_APP + 2;
inline constexpr UINT kRequests = WM_APP + 3;

}  // namespace html
