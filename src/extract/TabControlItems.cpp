#include "extract/TabControlItems.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <optional>

#include "extract/ItemRecords.h"
#include "extract/TargetBlock.h"

namespace extract {
namespace {

constexpr SIZE_T kTextSize = 256;
constexpr BlockSize kTextBlock{kTextSize, "256", kTextSize};

using TabRecord32 = TabItemRecord<std::uint32_t>;
using TabRecord64 = TabItemRecord<std::uint64_t>;

constexpr BlockSize kRecordBlock32{sizeof(TabRecord32), "28", sizeof(TabRecord32)};
constexpr BlockSize kRecordBlock64{sizeof(TabRecord64), "40", sizeof(TabRecord64)};

class TabSource {
 public:
  TabSource(HWND hwnd, const ControlAccess& access, DWORD processId, bool is64)
      : hwnd_(hwnd),
        messages_(access.messages),
        is64_(is64),
        record_(access.memory, processId, is64 ? kRecordBlock64 : kRecordBlock32),
        text_(access.memory, processId, kTextBlock) {}

  bool IsReady() const { return record_.Address() != 0 && text_.Address() != 0; }

  std::wstring Caption(std::int32_t index) {
    // A tab that the control does not give must not repeat the previous one.
    constexpr std::array<char, kTextSize> kEmpty{};
    text_.Write(kEmpty.data(), kEmpty.size());
    if (is64_) {
      WriteRecord<TabRecord64>();
    } else {
      WriteRecord<TabRecord32>();
    }
    messages_.Send(hwnd_, TCM_GETITEMA, static_cast<WPARAM>(index),
                   static_cast<LPARAM>(record_.Address()));
    return text_.ReadText(kTextSize);
  }

 private:
  template <typename Record>
  void WriteRecord() {
    Record record;
    std::memset(static_cast<void*>(&record), 0, sizeof record);  // gaps too
    record.mask = TCIF_TEXT;
    record.text = text_.Address();
    record.capacity = kTextSize;
    record_.Write(&record, sizeof record);
  }

  HWND hwnd_;
  ControlMessages& messages_;
  bool is64_;
  TargetBlock record_;
  TargetBlock text_;
};

}  // namespace

Method GetTabControlItem(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                         const ControlAccess& access) {
  return MethodOf([&]() -> Method {
    const std::int32_t count =
        std::min(access.messages.Send(hwnd, TCM_GETITEMCOUNT, 0, 0), kMostParts);
    const DWORD processId = access.messages.ProcessOf(hwnd);
    const std::optional<bool> is64 = MyMapView::IsProcess64(access.memory, processId);
    if (!is64) return {};
    TabSource source(hwnd, access, processId, *is64);
    if (!source.IsReady()) return {};
    for (std::int32_t i = 0; i < count; ++i) {
      if (Interrupted(session, platform::ReadUntil::kPointerLeaves, sink)) break;
      PutItem(sink, source.Caption(i));
      // Another separator. Odd, and stays: docs/ODDITIES.md.
      Progress(session, i + 1, L"/ --", count);
    }
    return L"TCM_GETITEM";
  });
}

}  // namespace extract
