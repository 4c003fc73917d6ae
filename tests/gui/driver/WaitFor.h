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

// Looks again and again until the condition holds. `seen` is filled by the condition with what it
// looked at; a failure tells the last one together with `what`.
testing::AssertionResult WaitFor(std::string_view what,
                                 const std::function<bool(std::string& seen)>& condition,
                                 Milliseconds deadline = kPatience);

// The condition holds at every look during that time: for things that must not happen.
testing::AssertionResult Stays(std::string_view what,
                               const std::function<bool(std::string& seen)>& condition,
                               Milliseconds duration);

// WaitFor and Stays for one text that is read anew at each look.
testing::AssertionResult TextBecomes(std::string_view what, std::string_view expected,
                                     const std::function<std::string()>& read,
                                     Milliseconds deadline = kPatience);
testing::AssertionResult TextStays(std::string_view what, std::string_view expected,
                                   const std::function<std::string()>& read, Milliseconds duration);

// Lets that time pass: for actions that take time themselves, such as holding a key down.
void Last(Milliseconds duration);

// Records the failure and throws std::runtime_error unless the result holds: for the driver's own
// steps, after which a test cannot go on.
void Require(const testing::AssertionResult& result);

}  // namespace gui
