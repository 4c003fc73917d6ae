#include "ListReaders.h"

#include <windows.h>

#include <commctrl.h>

#include <chrono>
#include <cstdint>
#include <cstring>
#include <functional>
#include <memory>
#include <stdexcept>
#include <utility>

#include "../ReadItems.h"
#include "ListFixture.h"
#include "Turns.h"
#include "driver/Owners.h"
#include "extract/ListBoxItems.h"
#include "extract/ListViewItems.h"
#include "extract/ListViewRows.h"
#include "extract/TabControlItems.h"
#include "extract/ToolbarItems.h"
#include "extract/TreeViewItems.h"

namespace bench {
namespace {

using Clock = std::chrono::steady_clock;
using gui::OwnedHandle;

constexpr int kChunk = 100;

int Ask(HWND control, UINT message, int wParam = 0, const void* lParam = nullptr) {
  return static_cast<int>(SendMessageW(control, message, static_cast<WPARAM>(wParam),
                                       reinterpret_cast<LPARAM>(lParam)));
}

// Memory in the process of a control, with the calls and nothing around them.
class BareBlock {
 public:
  BareBlock(HWND control, SIZE_T size) {
    DWORD processId = 0;
    GetWindowThreadProcessId(control, &processId);
    process_.reset(
        OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, processId));
    address_ =
        VirtualAllocEx(process_.get(), nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
  }
  const void* Address() const { return address_; }
  std::uint32_t Number() const { return reinterpret_cast<std::uintptr_t>(address_); }
  void Write(const void* data, SIZE_T size) const {
    WriteProcessMemory(process_.get(), address_, data, size, nullptr);
  }
  void Read(void* data, SIZE_T size) const {
    ReadProcessMemory(process_.get(), address_, data, size, nullptr);
  }

 private:
  OwnedHandle process_;
  void* address_ = nullptr;
};

// One step of a bare loop: the system calls for the item of that index.
using BareStep = std::function<void(int index)>;

BareStep BareListBox(HWND control) {
  return [control, buffer = std::vector<wchar_t>(70'000)](int index) mutable {
    Ask(control, LB_GETTEXTLEN, index);
    Ask(control, LB_GETTEXT, index, buffer.data());
  };
}

BareStep BareComboBox(HWND control) {
  return [control, buffer = std::vector<wchar_t>(70'000)](int index) mutable {
    Ask(control, CB_GETLBTEXTLEN, index);
    Ask(control, CB_GETLBTEXT, index, buffer.data());
  };
}

BareStep BareListView(HWND control) {
  const auto record = std::make_shared<BareBlock>(control, 40);
  const auto text = std::make_shared<BareBlock>(control, 256);
  return [control, record, text](int index) {
    char buffer[256] = {};
    for (std::uint32_t column = 0; column < 3; ++column) {
      const std::uint32_t row = static_cast<std::uint32_t>(index);
      const std::uint32_t fields[10] = {LVIF_TEXT, row, column, 0, 0, text->Number(), 512, 0, 0, 0};
      record->Write(fields, sizeof fields);
      text->Write(buffer, sizeof buffer);
      Ask(control, LVM_GETITEMA, 0, record->Address());
      text->Read(buffer, sizeof buffer);
    }
  };
}

BareStep BareToolbar(HWND control) {
  const auto block = std::make_shared<BareBlock>(control, 124);
  return [control, block](int index) {
    char buffer[121] = {};
    if (Ask(control, TB_GETBUTTON, index, block->Address()) <= 0) return;
    block->Read(buffer, sizeof buffer);
    int command = 0;
    std::memcpy(&command, buffer + 4, 4);
    if (Ask(control, TB_GETBUTTONTEXTA, command, block->Address()) <= 0) return;
    block->Read(buffer, sizeof buffer);
  };
}

BareStep BareTabs(HWND control) {
  const auto record = std::make_shared<BareBlock>(control, 28);
  const auto text = std::make_shared<BareBlock>(control, 256);
  return [control, record, text](int index) {
    char buffer[256] = {};
    const std::uint32_t fields[7] = {TCIF_TEXT, 0, 0, text->Number(), 256, 0, 0};
    text->Write(buffer, sizeof buffer);
    record->Write(fields, sizeof fields);
    Ask(control, TCM_GETITEMA, index, record->Address());
    text->Read(buffer, sizeof buffer);
  };
}

// The item, its neighbours and its text; the walk needs both neighbours of every item.
BareStep BareTree(HWND control) {
  const auto block = std::make_shared<BareBlock>(control, 40 + 2 * 260);
  return [control, block, item = 0, around = std::vector<int>()](int index) mutable {
    if (index == 0) item = Ask(control, TVM_GETNEXTITEM, TVGN_ROOT);
    std::uint32_t fields[10 + 130] = {
        TVIF_TEXT | TVIF_HANDLE, static_cast<std::uint32_t>(item), 0, 0, block->Number() + 40, 260};
    block->Write(fields, sizeof fields);
    Ask(control, TVM_GETITEMW, 0, block->Address());
    block->Read(fields, sizeof fields);
    const auto next = [control](int which, int from) {
      return Ask(control, TVM_GETNEXTITEM, which, reinterpret_cast<const void*>(from));
    };
    if (const int child = next(TVGN_CHILD, item); child != 0) {
      around.push_back(item);
      item = child;
      return;
    }
    while ((item = next(TVGN_NEXT, item)) == 0 && !around.empty()) {
      item = around.back();
      around.pop_back();
    }
  };
}

extract::Method ReadRows(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                         const extract::ControlAccess& access) {
  return extract::GetListViewRows(hwnd, session, sink, 0, access);
}

extract::Method ReadTree(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                         const extract::ControlAccess& access) {
  return extract::GetTreeViewItem(hwnd, session, sink, {true, 50}, access);
}

extract::Method ReadListView(HWND hwnd, const platform::ReadSession& session,
                             platform::ItemSink& sink, const extract::ControlAccess& access) {
  return extract::GetListViewItem(
      hwnd, session, sink, 0, [](platform::ItemSink&) {}, access);
}

struct Contest {
  std::string name;
  ItemReader read;
  BareStep (*bare)(HWND);
};

const Contest& ContestOf(const std::string& kind) {
  static const Contest contests[] = {
      {"listbox", extract::MyGetListBoxItem, BareListBox},
      {"dropdown", extract::MyGetComboBoxItem, BareComboBox},
      {"ownerdata", ReadListView, BareListView},
      {"toolbar", extract::GetToolbarItem, BareToolbar},
      {"tabs", extract::GetTabControlItem, BareTabs},
      {"ownerrows", ReadRows, BareListView},
      {"tree", ReadTree, BareTree},
  };
  for (const Contest& contest : contests) {
    if (contest.name == kind) return contest;
  }
  throw std::out_of_range("no such kind of control");
}

double MillisecondsBetween(Clock::time_point start, Clock::time_point end) {
  return std::chrono::duration<double, std::milli>(end - start).count();
}

// Reads the control, with a step of the bare loop and a stop of the clock in every yield.
std::vector<Pair> Compare(const Contest& contest, HWND control) {
  std::vector<Pair> chunks;
  Pair chunk{};
  int items = 0;
  HWND target = control;
  const BareStep bare = contest.bare(control);
  auto resumed = Clock::now();
  const auto takeTurns = [&] {
    PumpMessages();
    const auto yielded = Clock::now();
    bare(items);
    PumpMessages();
    const auto now = Clock::now();
    chunk.program += MillisecondsBetween(resumed, yielded);
    chunk.yardstick += MillisecondsBetween(yielded, now);
    if (++items % kChunk == 0) chunks.push_back(std::exchange(chunk, {}));
    resumed = Clock::now();
  };
  const platform::ReadSession session{target, [](const std::wstring&) {}, takeTurns,
                                      [] { return true; }};
  std::wstring method;
  const std::wstring text =
      ReadText(contest.read, control, session, method, extract::SystemAccess());
  if (text.empty() || chunks.empty()) {
    throw std::runtime_error("nothing was read from the " + contest.name);
  }
  return chunks;
}

}  // namespace

std::vector<Pair> MeasureItems(const std::string& kind, int items) {
  const std::string words = "deadline=3600 " + kind + "=many:" + std::to_string(items);
  const cross::ListFixture fixture(cross::Bits::k32, words);
  return Compare(ContestOf(kind), fixture[kind]);
}

std::vector<Pair> MeasureRowGrowth(int rows) {
  const std::vector<Pair> chunks = MeasureItems("ownerdata", rows);
  const std::size_t tenth = chunks.size() / 10;
  std::vector<Pair> pairs;
  for (std::size_t i = 0; i < tenth; ++i) {
    Pair whole{};
    for (std::size_t part = i; part < 10 * tenth; part += tenth) {
      whole.program += chunks[part].program / 10;
      whole.yardstick += chunks[part].yardstick / 10;
    }
    const Pair& first = chunks[i];
    pairs.push_back({whole.program, first.program * whole.yardstick / first.yardstick});
  }
  return pairs;
}

}  // namespace bench
