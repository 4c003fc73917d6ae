#include "platform/Clipboard.h"

#include <cstring>

namespace platform {
namespace {

class OpenedClipboard {
 public:
  explicit OpenedClipboard(HWND owner) {
    // Clipboard viewers open the clipboard for an instant after every change.
    for (int attempt = 0; attempt < 10 && !open_; ++attempt) {
      if (attempt > 0) Sleep(10);
      open_ = OpenClipboard(owner) != FALSE;
    }
  }
  ~OpenedClipboard() {
    if (open_) CloseClipboard();
  }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;
  explicit operator bool() const { return open_; }

 private:
  bool open_ = false;
};

}  // namespace

bool PutTextOnClipboard(HWND owner, const std::wstring& text) {
  const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, bytes);
  if (block == nullptr) return false;
  bool set = false;
  if (void* const place = GlobalLock(block)) {
    std::memcpy(place, text.c_str(), bytes);
    GlobalUnlock(block);
    const OpenedClipboard clipboard(owner);
    set = clipboard && EmptyClipboard() && SetClipboardData(CF_UNICODETEXT, block) != nullptr;
  }
  // Once set, the block belongs to the system.
  if (!set) GlobalFree(block);
  return set;
}

}  // namespace platform
