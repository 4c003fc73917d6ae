// The yardstick for VelmoraText: a console program that asks for a window's accessible name and
// reads all rows of a list view with the same messages and the same memory, and writes them.
//
//   bench_bare_text.exe HANDLE      (decimal)
#include <windows.h>

#include <commctrl.h>
#include <objbase.h>
#include <oleacc.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

constexpr int kCellsAtOnce = 96;
constexpr std::size_t kRoom = 260;

struct Cell {
  LVITEMW item;
  wchar_t text[kRoom];
};

void AskForName(HWND hwnd) {
  IAccessible* object = nullptr;
  if (FAILED(AccessibleObjectFromWindow(hwnd, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                        reinterpret_cast<void**>(&object)))) {
    return;
  }
  VARIANT self{};
  self.vt = VT_I4;
  BSTR name = nullptr;
  object->get_accName(self, &name);
  SysFreeString(name);
  object->Release();
}

class Rows {
 public:
  explicit Rows(HWND hwnd) : hwnd_(hwnd), cells_(kCellsAtOnce) {
    DWORD processId = 0;
    GetWindowThreadProcessId(hwnd, &processId);
    process_ =
        OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, processId);
    block_ = static_cast<Cell*>(
        VirtualAllocEx(process_, nullptr, Size(), MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE));
  }
  ~Rows() {
    VirtualFreeEx(process_, block_, 0, MEM_RELEASE);
    CloseHandle(process_);
  }
  Rows(const Rows&) = delete;
  Rows& operator=(const Rows&) = delete;

  std::wstring Read() {
    const auto header = reinterpret_cast<HWND>(Send(hwnd_, LVM_GETHEADER, 0));
    const int columns = static_cast<int>(Send(header, HDM_GETITEMCOUNT, 0));
    const int rows = static_cast<int>(Send(hwnd_, LVM_GETITEMCOUNT, 0));
    const int atOnce = kCellsAtOnce / std::max(columns, 1);
    std::wstring text;
    for (int row = 0; row < rows; row += atOnce) {
      const int cells = std::min(atOnce, rows - row) * columns;
      Fetch(row, cells, columns);
      for (int i = 0; i < cells; ++i) {
        text += cells_[static_cast<std::size_t>(i)].text;
        text += i % columns == columns - 1 ? L"\r\n" : L"\t";
      }
    }
    return text;
  }

 private:
  static constexpr SIZE_T Size() { return sizeof(Cell) * kCellsAtOnce; }
  static LRESULT Send(HWND hwnd, UINT message, LPARAM lParam) {
    return SendMessageW(hwnd, message, 0, lParam);
  }

  void Fetch(int row, int cells, int columns) {
    for (int i = 0; i < cells; ++i) {
      Cell& cell = cells_[static_cast<std::size_t>(i)];
      cell = {};
      cell.item.mask = LVIF_TEXT;
      cell.item.iItem = row + i / columns;
      cell.item.iSubItem = i % columns;
      cell.item.pszText = block_[i].text;
      cell.item.cchTextMax = kRoom;
    }
    WriteProcessMemory(process_, block_, cells_.data(), Size(), nullptr);
    for (int i = 0; i < cells; ++i) {
      Send(hwnd_, LVM_GETITEMW, reinterpret_cast<LPARAM>(&block_[i].item));
    }
    ReadProcessMemory(process_, block_, cells_.data(), Size(), nullptr);
  }

  HWND hwnd_;
  HANDLE process_ = nullptr;
  Cell* block_ = nullptr;
  std::vector<Cell> cells_;
};

void Write(const std::wstring& text) {
  const int length = static_cast<int>(text.size());
  std::string utf8(text.size() * 3, '\0');
  const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, utf8.data(),
                                       static_cast<int>(utf8.size()), nullptr, nullptr);
  DWORD written = 0;
  WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), utf8.data(), static_cast<DWORD>(size), &written,
            nullptr);
}

}  // namespace

int main(int count, char** words) {
  if (count != 2) return 2;
  const auto hwnd = reinterpret_cast<HWND>(static_cast<INT_PTR>(std::atol(words[1])));
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  AskForName(hwnd);
  Write(Rows(hwnd).Read());
  CoUninitialize();
  return 0;
}
