// Owners for the few system objects that the driver holds.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace gui {

struct CloseHandleCall {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};

// nullptr means "none"; INVALID_HANDLE_VALUE must not be stored.
using OwnedHandle = std::unique_ptr<std::remove_pointer_t<HANDLE>, CloseHandleCall>;

struct DeleteObjectCall {
  void operator()(void* object) const { DeleteObject(object); }
};
using OwnedBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeleteObjectCall>;
using OwnedFont = std::unique_ptr<std::remove_pointer_t<HFONT>, DeleteObjectCall>;

struct DeleteDcCall {
  void operator()(HDC dc) const { DeleteDC(dc); }
};
using OwnedMemoryDc = std::unique_ptr<std::remove_pointer_t<HDC>, DeleteDcCall>;

// The device context of the whole screen.
struct ReleaseScreenDcCall {
  void operator()(HDC dc) const { ReleaseDC(nullptr, dc); }
};
using OwnedScreenDc = std::unique_ptr<std::remove_pointer_t<HDC>, ReleaseScreenDcCall>;

}  // namespace gui
