#include "extract/ListBoxItems.h"

#include <algorithm>
#include <cstdint>
#include <cwchar>
#include <optional>
#include <string_view>

#include "extract/ItemReading.h"
#include "platform/GuardedBuffer.h"

namespace extract {
namespace {

struct ListKind {
  UINT count;
  UINT length;
  UINT text;
  DWORD ownerDrawn;  // style bits, any of them
  DWORD hasTexts;    // style bit: texts in spite of that
  const wchar_t* label;
};

constexpr ListKind kListBox{LB_GETCOUNT,    LB_GETTEXTLEN,
                            LB_GETTEXT,     LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE,
                            LBS_HASSTRINGS, L"LB_GETTEXT"};
constexpr ListKind kComboBox{CB_GETCOUNT,    CB_GETLBTEXTLEN,
                             CB_GETLBTEXT,   CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE,
                             CBS_HASSTRINGS, L"CB_GETLBTEXT"};

constexpr std::size_t kLeastBuffer = 1024;
// A length beyond this is not believed.
constexpr std::int32_t kLongestItem = 1 << 24;
// An item may have grown between the message that asks for its length and the one for its text.
constexpr std::size_t kRoom = 1U << 16;

// The characters to keep ready for an item that is said to be that long.
std::size_t BufferFor(std::int32_t length) {
  const bool believed = length > 0 && length <= kLongestItem;
  return std::max(believed ? static_cast<std::size_t>(length) : 0U, kLeastBuffer) + kRoom;
}

// The length that stands for a value of the owner's, in a 32-bit and in a 64-bit target.
bool IsDataSize(std::int32_t length) { return length == 4 || length == 8; }

// Failing items neither show progress nor yield, so a control that gives nothing must not keep
// the reader for as long as its count says.
constexpr int kMostFailures = 1000;

class ItemSource {
 public:
  ItemSource(const ListKind& kind, HWND hwnd, ControlMessages& messages)
      : kind_(kind), hwnd_(hwnd), messages_(messages) {
    const DWORD style = messages.StyleOf(hwnd);
    givesData_ = (style & kind.ownerDrawn) != 0 && (style & kind.hasTexts) == 0;
  }

  std::int32_t Count() const { return messages_.Send(hwnd_, kind_.count, 0, 0); }

  // Valid until the next call; nothing when the control does not give the item. The texts are
  // asked for in UTF-16, which is what a control of another process delivers in any case.
  std::optional<std::wstring_view> Item(std::int32_t index) {
    const WPARAM item = static_cast<WPARAM>(index);
    const std::int32_t told = messages_.Send(hwnd_, kind_.length, item, 0);
    if (givesData_ && IsDataSize(told)) return std::nullopt;
    buffer_.Reserve(BufferFor(told));
    // What the item before left.
    std::wmemset(buffer_.Data(), L'\0', used_);
    const std::int32_t answer =
        messages_.Send(hwnd_, kind_.text, item, reinterpret_cast<LPARAM>(buffer_.Data()));
    const wchar_t* const end = std::wmemchr(buffer_.Data(), L'\0', buffer_.Size());
    const std::size_t length =
        end == nullptr ? buffer_.Size() : static_cast<std::size_t>(end - buffer_.Data());
    used_ = std::max(length, kLeastBuffer);
    if (answer < 0 || end == nullptr) return std::nullopt;
    return std::wstring_view(buffer_.Data(), length);
  }

 private:
  const ListKind& kind_;
  HWND hwnd_;
  ControlMessages& messages_;
  bool givesData_;  // the text message gives a value of the owner's in place of a text
  platform::GuardedBuffer buffer_;
  std::size_t used_ = 0;
};

std::wstring ReadItems(const ListKind& kind, HWND hwnd, const platform::ReadSession& session,
                       std::wstring& method, const ControlAccess& access) {
  return Collected([&](std::wstring& text) {
    ItemSource source(kind, hwnd, access.messages);
    const std::int32_t count = source.Count();
    int failures = 0;
    for (std::int32_t i = 0; i < count && failures < kMostFailures; ++i) {
      if (Interrupted(hwnd, session, text)) break;
      const std::optional<std::wstring_view> item = source.Item(i);
      if (!item) {
        ++failures;
        continue;
      }
      failures = 0;
      text.append(*item).append(L"\r\n");
      Progress(session, i, L"/", count - 1);
    }
    method = kind.label;
  });
}

}  // namespace

std::wstring MyGetListBoxItem(HWND hwnd, const platform::ReadSession& session, std::wstring& method,
                              const ControlAccess& access) {
  return ReadItems(kListBox, hwnd, session, method, access);
}

std::wstring MyGetComboBoxItem(HWND hwnd, const platform::ReadSession& session,
                               std::wstring& method, const ControlAccess& access) {
  return ReadItems(kComboBox, hwnd, session, method, access);
}

}  // namespace extract
