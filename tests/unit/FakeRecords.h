// A control that fills records as the common controls of a 32-bit or of a 64-bit process do.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>

#include "FakeTarget.h"

// Where the fields of a record are, in bytes.
struct RecordLayout {
  std::size_t text;
  std::size_t capacity;
  bool is64;
};

class FakeRecord {
 public:
  FakeRecord(LPARAM address, const RecordLayout& layout)
      : at_(reinterpret_cast<char*>(address)), layout_(layout) {}

  template <typename Field>
  Field Get(std::size_t offset) const {
    Field field{};
    std::memcpy(&field, at_ + offset, sizeof field);
    return field;
  }
  std::int32_t Capacity() const { return Get<std::int32_t>(layout_.capacity); }

  // As much of the text as its room takes, with a zero character.
  void Give(const std::wstring& text) const {
    const auto room = static_cast<std::size_t>(std::max(Capacity(), 1)) - 1;
    wchar_t* const place =
        reinterpret_cast<wchar_t*>(static_cast<std::uintptr_t>(Get<std::uint32_t>(layout_.text)));
    const std::size_t length = std::min(text.size(), room);
    std::copy_n(text.begin(), length, place);
    place[length] = L'\0';
  }

  // Answers with an address of its own.
  void PointTo(std::uint64_t address) const {
    std::memcpy(at_ + layout_.text, &address, layout_.is64 ? 8 : 4);
  }

 private:
  char* at_;
  RecordLayout layout_;
};
