// Move-only owners of system handles. Each alias says how its handle is closed; an owner that
// holds nothing closes nothing.
#pragma once

#include <windows.h>

#include <utility>

namespace platform {

template <typename Closer>
class UniqueHandle {
 public:
  using Handle = typename Closer::Handle;

  UniqueHandle() = default;
  explicit UniqueHandle(Handle handle) noexcept : handle_(handle) {}
  UniqueHandle(UniqueHandle&& other) noexcept : handle_(std::exchange(other.handle_, Handle{})) {}
  UniqueHandle& operator=(UniqueHandle&& other) noexcept {
    UniqueHandle taken(std::move(other));
    std::swap(handle_, taken.handle_);
    return *this;
  }
  UniqueHandle(const UniqueHandle&) = delete;
  UniqueHandle& operator=(const UniqueHandle&) = delete;
  ~UniqueHandle() {
    if (handle_ != Handle{}) Closer::Close(handle_);
  }

  Handle Get() const noexcept { return handle_; }
  explicit operator bool() const noexcept { return handle_ != Handle{}; }

 private:
  Handle handle_{};
};

struct KernelCloser {
  using Handle = HANDLE;
  static void Close(Handle handle) noexcept { CloseHandle(handle); }
};
// A kernel object whose failed creation gives 0 (processes, threads, events), not
// INVALID_HANDLE_VALUE.
using UniqueKernelHandle = UniqueHandle<KernelCloser>;

struct FileSearchCloser {
  using Handle = HANDLE;
  static void Close(Handle search) noexcept { FindClose(search); }
};
using UniqueFileSearch = UniqueHandle<FileSearchCloser>;

struct FontCloser {
  using Handle = HFONT;
  static void Close(Handle font) noexcept { DeleteObject(font); }
};
using UniqueFont = UniqueHandle<FontCloser>;

struct BrushCloser {
  using Handle = HBRUSH;
  static void Close(Handle brush) noexcept { DeleteObject(brush); }
};
using UniqueBrush = UniqueHandle<BrushCloser>;

struct WindowCloser {
  using Handle = HWND;
  static void Close(Handle window) noexcept { DestroyWindow(window); }
};
// A window of this thread.
using UniqueWindow = UniqueHandle<WindowCloser>;

}  // namespace platform
