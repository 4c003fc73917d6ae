// How far a listing is: it shows its count and lets the program go on after every item, and it
// ends when the capture has moved to another window.
#pragma once

#include <cstdint>
#include <string>

#include "platform/ReadSession.h"

namespace MyAccessible {

class ListingProgress {
 public:
  explicit ListingProgress(const platform::ReadSession& session) : session_(session) {}

  // After every item; listed is the number of items so far.
  void Step(std::int32_t listed) const {
    session_.showProgress(std::to_wstring(listed));
    LetGoOn();
  }

  // After what is not counted.
  void LetGoOn() const { session_.yield(); }

  // Asked before every item.
  bool Interrupted() const { return session_.Interrupted(); }

  // The capture is on another window.
  bool HasMovedOn() const { return session_.HasMovedOn(); }

 private:
  const platform::ReadSession& session_;
};

}  // namespace MyAccessible
