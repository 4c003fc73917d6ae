#include "extract/ListViewItems.h"

#include <commctrl.h>

#include <algorithm>
#include <array>

#include "extract/TargetBlock.h"

namespace extract {
namespace {

// As the common controls of a 32-bit process expect it.
struct ItemRecord {
  std::uint32_t mask;
  std::int32_t item;
  std::int32_t subItem;
  std::uint32_t state;
  std::uint32_t stateMask;
  std::uint32_t text;
  std::int32_t capacity;
  std::int32_t image;
  std::uint32_t data;
  std::int32_t indent;
};
static_assert(sizeof(ItemRecord) == 40);

constexpr SIZE_T kTextSize = 256;
// Twice the size of the block, also for the release. Odd, and stays: docs/ODDITIES.md.
constexpr std::int32_t kCapacity = 512;

constexpr BlockSize kRecordBlock{sizeof(ItemRecord), "40", sizeof(ItemRecord)};
constexpr BlockSize kTextBlock{kTextSize, "256", 512};

class CellSource {
 public:
  CellSource(HWND hwnd, const ControlAccess& access, DWORD processId)
      : hwnd_(hwnd),
        messages_(access.messages),
        record_(access.memory, processId, kRecordBlock),
        text_(access.memory, processId, kTextBlock) {}

  bool IsReady() const { return record_.Address() != 0 && text_.Address() != 0; }

  std::wstring Cell(std::int32_t row, std::int32_t column) {
    const ItemRecord record{LVIF_TEXT, row, column, 0, 0, text_.Address(), kCapacity, 0, 0, 0};
    constexpr std::array<char, kTextSize> kEmpty{};
    record_.Write(&record, sizeof record);
    text_.Write(kEmpty.data(), kEmpty.size());
    messages_.Send(hwnd_, LVM_GETITEMA, 0, static_cast<LPARAM>(record_.Address()));
    return text_.ReadText(kTextSize);
  }

 private:
  HWND hwnd_;
  ControlMessages& messages_;
  TargetBlock record_;
  TargetBlock text_;
};

struct TableSize {
  std::int32_t rows;
  std::int32_t columns;
};

TableSize AskSize(HWND hwnd, ControlMessages& messages) {
  TableSize size{messages.Send(hwnd, LVM_GETITEMCOUNT, 0, 0), 0};
  if (size.rows <= 0) return size;
  const INT_PTR header = messages.Send(hwnd, LVM_GETHEADER, 0, 0);
  if (header == 0) return size;
  size.columns = messages.Send(reinterpret_cast<HWND>(header), HDM_GETITEMCOUNT, 0, 0);
  return size;
}

enum class RowsRead { kWithText, kWithoutText, kInterrupted };

RowsRead ReadRows(const platform::ReadSession& session, TableSize size, CellSource& source,
                  platform::ItemSink& sink) {
  bool anyText = false;
  for (std::int32_t row = 0; row < size.rows; ++row) {
    for (std::int32_t column = 0; column < size.columns; ++column) {
      const std::wstring cell = source.Cell(row, column);
      anyText = anyText || !cell.empty();
      sink.Cell(cell);
    }
    sink.EndRow();
    Progress(session, row + 1, L"/", size.rows);
    if (Interrupted(session, platform::ReadUntil::kCaptureEnds, sink)) {
      return RowsRead::kInterrupted;
    }
  }
  return anyText ? RowsRead::kWithText : RowsRead::kWithoutText;
}

}  // namespace

Method GetListViewItem(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                       std::int32_t listviewCol, const AccessibleReader& accessible,
                       const ControlAccess& access) {
  return MethodOf([&]() -> Method {
    if (hwnd == nullptr) return {};
    const auto readAccessible = [&] {
      sink.Discard();
      accessible(sink);
      return kByAccessibleObject;
    };
    if (MyMapView::IsWin64(access.memory)) return readAccessible();

    TableSize size = AskSize(hwnd, access.messages);
    if (size.rows <= 0) return {};
    if (size.columns <= 0) return readAccessible();
    size.columns = listviewCol == kFirstColumnOnly ? 1 : std::min(size.columns, kMostColumns);

    CellSource source(hwnd, access, access.messages.ProcessOf(hwnd));
    if (!source.IsReady()) return {};
    if (ReadRows(session, size, source, sink) == RowsRead::kWithoutText) return readAccessible();
    // The message is LVM_GETITEMA. Odd, and stays: docs/ODDITIES.md.
    return L"LVM_GETITEMW";
  });
}

}  // namespace extract
