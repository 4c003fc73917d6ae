#include "driver/Clipboard.h"

#include <windows.h>

#include <cstring>

#include "driver/Text.h"
#include "driver/WaitFor.h"

namespace gui::clipboard {
namespace {

// The clipboard belongs to one program at a time; another one may hold it for a moment.
class Opened {
 public:
  Opened() {
    Require(WaitFor("the clipboard can be opened",
                    [](std::string&) { return OpenClipboard(nullptr) != FALSE; }));
  }
  ~Opened() { CloseClipboard(); }
  Opened(const Opened&) = delete;
  Opened& operator=(const Opened&) = delete;
};

}  // namespace

std::optional<std::string> Text() {
  const Opened opened;
  const HANDLE data = GetClipboardData(CF_UNICODETEXT);
  if (data == nullptr) return std::nullopt;
  const auto* text = static_cast<const wchar_t*>(GlobalLock(data));
  if (text == nullptr) return std::nullopt;
  std::string result = ToUtf8(text);
  GlobalUnlock(data);
  return result;
}

void SetText(std::string_view utf8) {
  const std::wstring text = ToWide(utf8);
  const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
  // The clipboard owns the block from now on.
  const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, size);
  std::memcpy(GlobalLock(block), text.c_str(), size);
  GlobalUnlock(block);
  const Opened opened;
  EmptyClipboard();
  SetClipboardData(CF_UNICODETEXT, block);
}

}  // namespace gui::clipboard
