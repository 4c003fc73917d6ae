#include "platform/GuardedBuffer.h"

#include <windows.h>

#include <new>

namespace platform {
namespace {

constexpr std::size_t kPage = 4096;

}  // namespace

GuardedBuffer::~GuardedBuffer() { Release(); }

void GuardedBuffer::Release() noexcept {
  if (data_ != nullptr) VirtualFree(data_, 0, MEM_RELEASE);
  data_ = nullptr;
  size_ = 0;
}

void GuardedBuffer::Reserve(std::size_t characters) {
  if (characters <= size_) return;
  Release();
  const std::size_t bytes = (characters * sizeof(wchar_t) + kPage - 1) / kPage * kPage;
  // One more page of address space is reserved and never gets memory.
  void* const base = VirtualAlloc(nullptr, bytes + kPage, MEM_RESERVE, PAGE_NOACCESS);
  if (base == nullptr) throw std::bad_alloc();
  data_ = static_cast<wchar_t*>(base);
  if (VirtualAlloc(base, bytes, MEM_COMMIT, PAGE_READWRITE) == nullptr) {
    Release();
    throw std::bad_alloc();
  }
  size_ = bytes / sizeof(wchar_t);
}

}  // namespace platform
