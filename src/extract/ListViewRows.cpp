#include "extract/ListViewRows.h"

#include <commctrl.h>

#include <algorithm>

#include "extract/ItemRecords.h"
#include "extract/ListViewItems.h"
#include "extract/RecordTexts.h"

namespace extract {
namespace {

// Cells that go over to the target in one call: more are not quicker, and take room there.
constexpr std::int32_t kCellsAtOnce = 96;
constexpr std::size_t kRoom = 260;  // characters

std::int32_t ColumnsOf(HWND hwnd, std::int32_t listviewCol, ControlMessages& messages) {
  const INT_PTR header = messages.Send(hwnd, LVM_GETHEADER, 0, 0);
  if (header == 0 || listviewCol == kFirstColumnOnly) return 1;
  const std::int32_t count = messages.Send(reinterpret_cast<HWND>(header), HDM_GETITEMCOUNT, 0, 0);
  return std::clamp(count, 1, kMostColumns);
}

template <typename Record>
class Rows {
 public:
  Rows(HWND hwnd, const platform::ReadSession& session, std::int32_t columns,
       const ControlAccess& access)
      : hwnd_(hwnd),
        session_(session),
        columns_(columns),
        access_(access),
        atOnce_(std::max(kCellsAtOnce / columns, 1)),
        batch_(access, access.messages.ProcessOf(hwnd), static_cast<std::size_t>(atOnce_ * columns),
               kRoom) {}

  Method PutInto(platform::ItemSink& sink) {
    if (!batch_.IsReady()) return {};
    const std::int32_t rows = access_.messages.Send(hwnd_, LVM_GETITEMCOUNT, 0, 0);
    for (std::int32_t row = 0; row < rows;) {
      const std::int32_t done = Fetch(row, std::min(atOnce_, rows - row), rows);
      for (std::int32_t i = 0; i < done; ++i) PutRow(row + i, i * columns_, sink);
      row += done;
      if (Interrupted(session_, platform::ReadUntil::kCaptureEnds, sink)) break;
    }
    return L"LVM_GETITEMW";
  }

 private:
  // Has the control fill the rows from first on; returns how many, which is fewer when the reading
  // is interrupted.
  std::int32_t Fetch(std::int32_t first, std::int32_t count, std::int32_t rows) {
    const std::int32_t cells = count * columns_;
    for (std::int32_t i = 0; i < cells; ++i) {
      batch_.Ask(static_cast<std::size_t>(i), Cell(first + i / columns_, i % columns_));
    }
    batch_.Write(static_cast<std::size_t>(cells));
    std::int32_t done = 0;
    do {
      for (std::int32_t i = done * columns_; i < (done + 1) * columns_; ++i) {
        access_.messages.Send(hwnd_, LVM_GETITEMW, 0,
                              batch_.Parameter(static_cast<std::size_t>(i)));
      }
      ++done;
      Progress(session_, first + done, L"/", rows);
    } while (done < count && session_.GoesOn(platform::ReadUntil::kCaptureEnds));
    batch_.Read(static_cast<std::size_t>(done * columns_));
    return done;
  }

  void PutRow(std::int32_t row, std::int32_t firstCell, platform::ItemSink& sink) {
    for (std::int32_t column = 0; column < columns_; ++column) {
      const auto cell = static_cast<std::size_t>(firstCell + column);
      sink.Cell(batch_.IsFull(cell) ? WholeText(row, column) : batch_.Text(cell));
    }
    sink.EndRow();
  }

  std::wstring WholeText(std::int32_t row, std::int32_t column) {
    return RecordText<Record>(hwnd_, access_).Ask(Cell(row, column), LVM_GETITEMW, 0);
  }

  static Record Cell(std::int32_t row, std::int32_t column) {
    Record record;
    record.item = row;
    record.subItem = column;
    return record;
  }

  HWND hwnd_;
  const platform::ReadSession& session_;
  std::int32_t columns_;
  const ControlAccess& access_;
  std::int32_t atOnce_;
  RecordBatch<Record> batch_;
};

}  // namespace

Method GetListViewRows(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                       std::int32_t listviewCol, const ControlAccess& access) {
  return InTargetsBitness<ListItemRecord>(hwnd, access, [&]<typename Record>(Record) {
    return Rows<Record>(hwnd, session, ColumnsOf(hwnd, listviewCol, access.messages), access)
        .PutInto(sink);
  });
}

}  // namespace extract
