#include "extract/CaptionItems.h"

#include <commctrl.h>

#include <algorithm>

#include "extract/ItemRecords.h"
#include "extract/RecordTexts.h"
#include "extract/StringUtilities.h"
#include "extract/Win32API_Window.h"

namespace extract {
namespace {

// Puts text(index) for every index below count.
template <typename Text>
void PutTexts(std::int32_t count, const platform::ReadSession& session, platform::ItemSink& sink,
              Text&& text) {
  for (std::int32_t i = 0; i < count; ++i) {
    if (Interrupted(session, platform::ReadUntil::kPointerLeaves, sink)) return;
    PutItem(sink, text(i));
    Progress(session, i + 1, L"/", count);
  }
}

// The texts of a status bar's parts have 16-bit lengths.
constexpr SIZE_T kPartSize = (SIZE_T{0xFFFF} + 1) * sizeof(wchar_t);
constexpr std::uint32_t kSimplePart = 0xFF;
constexpr wchar_t kAlignment = L'\t';  // before a text: centred, and flush right with two

std::wstring PartText(HWND hwnd, std::uint32_t part, const ReleasedBlock& block,
                      ControlMessages& messages) {
  const auto told = static_cast<std::uint32_t>(messages.Send(hwnd, SB_GETTEXTLENGTHW, part, 0));
  const bool ownerDrawn = (HIWORD(told) & SBT_OWNERDRAW) != 0;
  if (LOWORD(told) == 0 || ownerDrawn) return {};
  messages.Send(hwnd, SB_GETTEXTW, part, static_cast<LPARAM>(block.Address()));
  std::wstring text = block.TextAt(block.Address());
  text.resize(std::min<std::size_t>(text.size(), LOWORD(told)));
  text.erase(0, std::min(text.find_first_not_of(kAlignment), text.size()));
  return text;
}

}  // namespace

HWND ComboBoxExOf(HWND hwnd) {
  for (const HWND candidate : {hwnd, GetParent(hwnd)}) {
    const std::wstring className = Win32API_Window::MyGetClassName(candidate);
    if (ContainsIgnoringCase(className, L"ComboBoxEx")) return candidate;
  }
  return nullptr;
}

Method GetComboBoxExItem(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                         const ControlAccess& access) {
  return InTargetsBitness<ComboBoxExItemRecord>(
      hwnd, access, [&]<typename Record>(Record) -> Method {
        const std::int32_t count = access.messages.Send(hwnd, CB_GETCOUNT, 0, 0);
        RecordText<Record> texts(hwnd, access);
        if (count <= 0 || !texts.IsReady()) return {};
        PutTexts(count, session, sink, [&](std::int32_t index) {
          Record record;
          record.item = static_cast<decltype(record.item)>(index);
          return texts.Ask(record, CBEM_GETITEMW, 0);
        });
        return L"CBEM_GETITEMW";
      });
}

Method GetHeaderItem(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                     const ControlAccess& access) {
  return InTargetsBitness<HeaderItemRecord>(hwnd, access, [&]<typename Record>(Record) -> Method {
    const std::int32_t count =
        std::min(access.messages.Send(hwnd, HDM_GETITEMCOUNT, 0, 0), kMostParts);
    RecordText<Record> texts(hwnd, access);
    if (count <= 0 || !texts.IsReady()) return {};
    PutTexts(count, session, sink, [&](std::int32_t index) {
      return texts.Ask(Record(), HDM_GETITEMW, static_cast<WPARAM>(index));
    });
    return L"HDM_GETITEMW";
  });
}

Method GetStatusBarItem(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                        const ControlAccess& access) {
  return MethodOf([&]() -> Method {
    ControlMessages& messages = access.messages;
    const ReleasedBlock block(access.memory, messages.ProcessOf(hwnd), kPartSize);
    if (!block.IsReady()) return {};
    const bool simple = messages.Send(hwnd, SB_ISSIMPLE, 0, 0) != FALSE;
    const std::int32_t parts =
        simple ? 1 : std::min(messages.Send(hwnd, SB_GETPARTS, 0, 0), kMostParts);
    if (parts <= 0) return {};
    PutTexts(parts, session, sink, [&](std::int32_t index) {
      const auto part = simple ? kSimplePart : static_cast<std::uint32_t>(index);
      return PartText(hwnd, part, block, messages);
    });
    return L"SB_GETTEXTW";
  });
}

}  // namespace extract
