#include "extract/ListBoxItems.h"

#include <algorithm>
#include <cstdint>
#include <cwchar>
#include <optional>
#include <string_view>

#include "platform/GuardedBuffer.h"

namespace extract {
namespace {

struct ListKind {
  UINT count;
  UINT length;
  UINT text;
  DWORD ownerDrawn;  // style bits, any of them
  DWORD hasTexts;    // style bit: texts in spite of that
  Method label;
};

constexpr ListKind kListBox{LB_GETCOUNT,    LB_GETTEXTLEN,
                            LB_GETTEXT,     LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE,
                            LBS_HASSTRINGS, L"LB_GETTEXT"};
constexpr ListKind kComboBox{CB_GETCOUNT,    CB_GETLBTEXTLEN,
                             CB_GETLBTEXT,   CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE,
                             CBS_HASSTRINGS, L"CB_GETLBTEXT"};

constexpr std::size_t kLeastBuffer = 1024;
// A greater length counts as unknown.
constexpr std::int32_t kLongestItem = 1 << 24;
// An item may have grown between the message that asks for its length and the one for its text.
constexpr std::size_t kRoom = 1U << 16;

// The size of the buffer, in characters, for an item of that announced length.
std::size_t BufferFor(std::int32_t length) {
  const bool believed = length > 0 && length <= kLongestItem;
  return std::max(believed ? static_cast<std::size_t>(length) : 0U, kLeastBuffer) + kRoom;
}

// Whether that is the size of a value of the owner's, in a 32-bit or a 64-bit target, and not of a
// text.
bool IsDataSize(std::int32_t length) { return length == 4 || length == 8; }

// Whether the text message gives a value of the owner's in place of a text.
bool GivesData(const ListKind& kind, HWND hwnd, ControlMessages& messages) {
  const DWORD style = messages.StyleOf(hwnd);
  return (style & kind.ownerDrawn) != 0 && (style & kind.hasTexts) == 0;
}

class ItemSource {
 public:
  ItemSource(const ListKind& kind, HWND hwnd, ControlMessages& messages)
      : kind_(kind), hwnd_(hwnd), messages_(messages) {
    givesData_ = GivesData(kind, hwnd, messages);
  }

  std::int32_t Count() const { return messages_.Send(hwnd_, kind_.count, 0, 0); }

  // Valid until the next call; empty when the control does not give the item, and nothing when what
  // it gives is not a text. The texts are requested in UTF-16, which is what a control of another
  // process delivers in any case.
  std::optional<std::wstring_view> Item(std::int32_t index) {
    const WPARAM item = static_cast<WPARAM>(index);
    const std::int32_t told = messages_.Send(hwnd_, kind_.length, item, 0);
    if (givesData_ && IsDataSize(told)) return std::nullopt;
    buffer_.Reserve(BufferFor(told));
    // Clears the previous item.
    std::wmemset(buffer_.Data(), L'\0', used_);
    // The answer does not matter: the text is what was written.
    messages_.Send(hwnd_, kind_.text, item, reinterpret_cast<LPARAM>(buffer_.Data()));
    const wchar_t* const end = std::wmemchr(buffer_.Data(), L'\0', buffer_.Size());
    const std::size_t length =
        end == nullptr ? buffer_.Size() : static_cast<std::size_t>(end - buffer_.Data());
    used_ = std::max(length, kLeastBuffer);
    if (end == nullptr) return std::nullopt;
    return std::wstring_view(buffer_.Data(), length);
  }

 private:
  const ListKind& kind_;
  HWND hwnd_;
  ControlMessages& messages_;
  bool givesData_ = false;
  platform::GuardedBuffer buffer_;
  std::size_t used_ = 0;
};

Method ReadItems(const ListKind& kind, HWND hwnd, const platform::ReadSession& session,
                 platform::ItemSink& sink, const ControlAccess& access) {
  return MethodOf([&]() -> Method {
    ItemSource source(kind, hwnd, access.messages);
    const std::int32_t count = source.Count();
    for (std::int32_t i = 0; i < count; ++i) {
      if (Interrupted(session, platform::ReadUntil::kPointerLeaves, sink)) break;
      if (const std::optional<std::wstring_view> item = source.Item(i)) PutItem(sink, *item);
      // The last item shows two equal numbers. Odd, and stays: docs/ODDITIES.md.
      Progress(session, i, L"/", count - 1);
    }
    return kind.label;
  });
}

}  // namespace

Method MyGetListBoxItem(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                        const ControlAccess& access) {
  return ReadItems(kListBox, hwnd, session, sink, access);
}

Method MyGetComboBoxItem(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                         const ControlAccess& access) {
  return ReadItems(kComboBox, hwnd, session, sink, access);
}

bool ListBoxHasNoTexts(HWND hwnd, const ControlAccess& access) {
  return GivesData(kListBox, hwnd, access.messages);
}

bool ComboBoxHasNoTexts(HWND hwnd, const ControlAccess& access) {
  return GivesData(kComboBox, hwnd, access.messages);
}

}  // namespace extract
