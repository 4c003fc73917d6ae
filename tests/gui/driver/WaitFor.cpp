#include "driver/WaitFor.h"

#include <windows.h>

#include <stdexcept>

namespace gui {
namespace {

constexpr DWORD kBetweenLooks = 5;

using Clock = std::chrono::steady_clock;

testing::AssertionResult Failure(std::string_view what, const std::string& seen, bool kept,
                                 Clock::duration passed) {
  const auto ms = std::chrono::duration_cast<Milliseconds>(passed).count();
  return testing::AssertionFailure()
         << what << (kept ? ": no longer true after " : ": not so within ") << ms
         << " ms; last seen: \"" << seen << "\"";
}

}  // namespace

testing::AssertionResult WaitFor(std::string_view what,
                                 const std::function<bool(std::string&)>& condition,
                                 Milliseconds deadline) {
  const auto start = Clock::now();
  for (;;) {
    std::string seen;
    if (condition(seen)) return testing::AssertionSuccess();
    const auto passed = Clock::now() - start;
    if (passed >= deadline) return Failure(what, seen, false, passed);
    Sleep(kBetweenLooks);
  }
}

testing::AssertionResult Stays(std::string_view what,
                               const std::function<bool(std::string&)>& condition,
                               Milliseconds duration) {
  const auto start = Clock::now();
  for (;;) {
    std::string seen;
    const bool holds = condition(seen);
    const auto passed = Clock::now() - start;
    if (!holds) return Failure(what, seen, true, passed);
    if (passed >= duration) return testing::AssertionSuccess();
    Sleep(kBetweenLooks);
  }
}

testing::AssertionResult TextBecomes(std::string_view what, std::string_view expected,
                                     const std::function<std::string()>& read,
                                     Milliseconds deadline) {
  return WaitFor(
      std::string(what) + " becomes \"" + std::string(expected) + "\"",
      [&](std::string& seen) {
        seen = read();
        return seen == expected;
      },
      deadline);
}

testing::AssertionResult TextStays(std::string_view what, std::string_view expected,
                                   const std::function<std::string()>& read,
                                   Milliseconds duration) {
  return Stays(
      std::string(what) + " stays \"" + std::string(expected) + "\"",
      [&](std::string& seen) {
        seen = read();
        return seen == expected;
      },
      duration);
}

void Last(Milliseconds duration) { Sleep(static_cast<DWORD>(duration.count())); }

void Require(const testing::AssertionResult& result) {
  if (result) return;
  // Recorded before the stack is unwound, so that a screenshot still shows the test's windows.
  ADD_FAILURE() << result.message();
  throw std::runtime_error("the test cannot go on");
}

}  // namespace gui
