// Work that may wait for another program for ever, and the time that it gets.
#pragma once

#include <cstdint>
#include <functional>

namespace console {

// Does the work in a thread of its own, with COM, and waits for it. False when the time
// (milliseconds) is over: the work still runs then, and the caller must end the process. An
// exception of the work is rethrown.
bool FinishesWithin(std::uint32_t time, const std::function<void()>& work);

}  // namespace console
