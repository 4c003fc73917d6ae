// How far a listing is: it shows its count and lets the program go on after every item, and it
// ends when the capture has moved to another window.
#pragma once

#include <cstdint>
#include <string>

#include "platform/ReadSession.h"

namespace MyAccessible {

class ListingProgress {
 public:
  explicit ListingProgress(const platform::ReadSession& session)
      : session_(session), target_(session.target) {}

  // After every item; listed is the number of items so far.
  void Step(std::int32_t listed) const {
    session_.showProgress(std::to_wstring(listed));
    session_.yield();
  }

  // Asked before every item.
  bool Interrupted() const { return session_.target != target_ || !session_.stillRunning(); }

 private:
  const platform::ReadSession& session_;
  const HWND target_;  // when the listing began
};

}  // namespace MyAccessible
