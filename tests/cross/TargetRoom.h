// How the tests themselves ask a control of another process.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

#include "driver/Owners.h"

namespace cross {

// The lower 32 bits of the answer. Throws std::runtime_error when there is none within 20 s.
int Ask(HWND control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

// A record and behind it a text, in the process of a control.
class TargetRoom {
 public:
  static constexpr std::size_t kTextAt = 256;  // bytes from the record
  static constexpr std::size_t kTextLength = 8192;

  // Throws std::runtime_error when there is no room.
  explicit TargetRoom(HWND control);
  ~TargetRoom();
  TargetRoom(const TargetRoom&) = delete;
  TargetRoom& operator=(const TargetRoom&) = delete;

  LPARAM Record() const { return reinterpret_cast<LPARAM>(base_); }
  std::uint32_t Text() const { return static_cast<std::uint32_t>(Record()) + kTextAt; }

  // The rest of the room becomes zero.
  void Put(const std::vector<std::uint32_t>& record) const;
  std::wstring TakeText(std::size_t at = kTextAt) const;
  std::uint32_t TakeField(std::size_t index) const;

 private:
  gui::OwnedHandle process_;
  void* base_;
};

}  // namespace cross
