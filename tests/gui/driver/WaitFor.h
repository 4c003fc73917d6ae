// Waiting for a condition: the only place of the GUI tests that sleeps.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

namespace gui {

using Milliseconds = std::chrono::milliseconds;

// Long enough for a loaded machine; a test that passes does not wait that long.
inline constexpr Milliseconds kPatience{10000};

// Tests the condition repeatedly until it holds. The condition fills `seen` with what it saw; a
// failure shows the last one together with `what`.
testing::AssertionResult WaitFor(std::string_view what,
                                 const std::function<bool(std::string& seen)>& condition,
                                 Milliseconds deadline = kPatience);

// The condition holds at every test during that time: for things that must not happen.
testing::AssertionResult Stays(std::string_view what,
                               const std::function<bool(std::string& seen)>& condition,
                               Milliseconds duration);

// WaitFor and Stays for one text that is read again at each test.
testing::AssertionResult TextBecomes(std::string_view what, std::string_view expected,
                                     const std::function<std::string()>& read,
                                     Milliseconds deadline = kPatience);
testing::AssertionResult TextStays(std::string_view what, std::string_view expected,
                                   const std::function<std::string()>& read, Milliseconds duration);

// Waits for that time: for actions that take time themselves, such as holding a key down.
void Last(Milliseconds duration);

// Records the failure and throws std::runtime_error unless the result holds: for the driver's own
// steps, after which a test cannot go on.
void Require(const testing::AssertionResult& result);

}  // namespace gui
