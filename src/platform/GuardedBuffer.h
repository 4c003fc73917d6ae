// A buffer for a text that somebody else writes who may write more than announced.
#pragma once

#include <cstddef>

namespace platform {

// The memory behind the buffer cannot be touched: a writer that goes too far is stopped by the
// system and spoils nothing.
class GuardedBuffer {
 public:
  GuardedBuffer() = default;
  GuardedBuffer(const GuardedBuffer&) = delete;
  GuardedBuffer& operator=(const GuardedBuffer&) = delete;
  ~GuardedBuffer();

  // Makes the buffer hold at least that many characters; new room is filled with zeros, and a
  // buffer that grows loses its content. Throws std::bad_alloc.
  void Reserve(std::size_t characters);

  wchar_t* Data() const noexcept { return data_; }
  std::size_t Size() const noexcept { return size_; }  // characters

 private:
  void Release() noexcept;

  wchar_t* data_ = nullptr;
  std::size_t size_ = 0;
};

}  // namespace platform
