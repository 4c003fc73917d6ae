// Reading a long list needs the memory of its text and hardly more.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>
#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string>

#include "../ReadItems.h"
#include "FakeTarget.h"
#include "extract/ListBoxItems.h"
#include "extract/ListViewItems.h"

namespace {

// Bytes that are allocated now, and the most that were at a time since `highest` was set.
std::size_t allocated = 0;
std::size_t highest = 0;

void* Allocate(std::size_t size) {
  void* const block = std::malloc(size);
  if (block == nullptr) throw std::bad_alloc();
  allocated += _msize(block);
  highest = std::max(highest, allocated);
  return block;
}

void Free(void* block) noexcept {
  if (block != nullptr) allocated -= _msize(block);
  std::free(block);
}

}  // namespace

// All memory of this program is allocated by these.
void* operator new(std::size_t size) { return Allocate(size); }
void* operator new[](std::size_t size) { return Allocate(size); }
void operator delete(void* block) noexcept { Free(block); }
void operator delete[](void* block) noexcept { Free(block); }
void operator delete(void* block, std::size_t) noexcept { Free(block); }
void operator delete[](void* block, std::size_t) noexcept { Free(block); }

namespace extract {
namespace {

constexpr int kRows = 100'000;
constexpr int kColumns = 3;
constexpr char kCell[] = "a cell of 24 characters.";
constexpr wchar_t kItem[] = L"an item of 24 characters";
// A string that grows is copied into one of twice its size, and both exist meanwhile.
constexpr std::size_t kWhileGrowing = 3;
constexpr std::size_t kBesidesText = 200'000;

// Answers without a record, which would count as memory of the reading.
class PlainMessages : public ControlMessages {
 public:
  std::int32_t Send(HWND, UINT message, WPARAM, LPARAM lParam) override {
    switch (message) {
      case LVM_GETITEMCOUNT:
      case LB_GETCOUNT:
        return kRows;
      case LVM_GETHEADER:
        return 1;
      case HDM_GETITEMCOUNT:
        return kColumns;
      case LB_GETTEXTLEN:
        return static_cast<std::int32_t>(std::size(kItem)) - 1;
      case LB_GETTEXT:
        std::memcpy(reinterpret_cast<void*>(lParam), kItem, sizeof kItem);
        return static_cast<std::int32_t>(std::size(kItem)) - 1;
      case LVM_GETITEMA: {
        std::uint32_t text = 0;
        std::memcpy(&text, reinterpret_cast<const char*>(lParam) + 20, sizeof text);
        std::memcpy(reinterpret_cast<void*>(static_cast<std::uintptr_t>(text)), kCell,
                    sizeof kCell);
        return 1;
      }
      default:
        return 0;
    }
  }
  DWORD ProcessOf(HWND) override { return 77; }
  DWORD StyleOf(HWND) override { return 0; }
};

class PlainMemory : public FakeMemory {
 public:
  BOOL WriteProcessMemory(HANDLE, void* address, const void* data, SIZE_T size) override {
    std::memcpy(address, data, size);
    return TRUE;
  }
  BOOL ReadProcessMemory(HANDLE, const void* address, void* data, SIZE_T size) override {
    std::memcpy(data, address, size);
    return TRUE;
  }
};

class ReadingMemoryTest : public testing::Test {
 protected:
  platform::ReadSession Session() {
    return {target_, [](const std::wstring&) {}, [] {}, [] { return true; }};
  }
  ControlAccess Access() { return {messages_, memory_}; }

  template <typename Reader>
  void ExpectMemoryOfTheText(Reader&& read, std::size_t characters) {
    const std::size_t before = allocated;
    highest = before;
    const std::wstring text = read();
    ASSERT_EQ(text.size(), characters);
    const std::size_t bytes = characters * sizeof(wchar_t);
    EXPECT_LE(highest - before, kWhileGrowing * bytes + kBesidesText);
    EXPECT_LE(allocated - before, 2 * bytes + kBesidesText);
  }

  HWND target_ = reinterpret_cast<HWND>(static_cast<std::uintptr_t>(0x1234));
  PlainMessages messages_;
  PlainMemory memory_;
  std::wstring method_;
};

TEST_F(ReadingMemoryTest, OfAListView) {
  const std::size_t row = kColumns * std::strlen(kCell) + (kColumns - 1) + 2;
  ExpectMemoryOfTheText(
      [&] {
        return TextOf(
            [this](platform::ItemSink& sink) {
              return GetListViewItem(
                  target_, Session(), sink, 0, [](platform::ItemSink&) {}, Access());
            },
            method_);
      },
      kRows * row);
}

TEST_F(ReadingMemoryTest, OfAListBox) {
  const std::size_t row = std::size(kItem) - 1 + 2;
  ExpectMemoryOfTheText(
      [&] { return ReadText(MyGetListBoxItem, target_, Session(), method_, Access()); },
      kRows * row);
}

}  // namespace
}  // namespace extract
