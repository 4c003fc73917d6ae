// A buffer for a text that another program writes, which may write more than it announced.
#pragma once

#include <cstddef>

namespace platform {

// The memory after the buffer is not accessible: the system stops a writer that goes too far, and
// no other memory is damaged.
class GuardedBuffer {
 public:
  GuardedBuffer() = default;
  GuardedBuffer(const GuardedBuffer&) = delete;
  GuardedBuffer& operator=(const GuardedBuffer&) = delete;
  ~GuardedBuffer();

  // Makes the buffer hold at least that many characters; new memory is filled with zeros, and a
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
