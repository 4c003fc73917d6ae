// Follows the pointer until Ctrl+C.
#pragma once

#include <windows.h>

#include <functional>

namespace console {

// Calls read with every point (screen pixels) at which the pointer comes to rest. Returns when read
// gives false, and after Ctrl+C.
void Watch(const std::function<bool(POINT)>& read);

}  // namespace console
