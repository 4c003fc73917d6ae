#include "extract/ReleasedBlock.h"

#include <array>
#include <cstddef>
#include <limits>
#include <string_view>

#include "extract/MyMapView.h"

namespace extract {
namespace {

constexpr std::uint64_t kHighest = 0x7FFFFFFF;
constexpr std::size_t kPage = 4096;  // memory is readable, or not, by pages
constexpr std::size_t kLongestText = 1U << 24;

}  // namespace

ReleasedBlock::ReleasedBlock(MyMapView::MemoryCalls& calls, DWORD processId, SIZE_T size)
    : calls_(calls) {
  if (!MyMapView::IsNT(calls)) return;
  address_ = MyMapView::AllocRemote(calls, processId, size, process_);
  if (address_ == nullptr || std::uint64_t{Address()} + size <= kHighest) return;
  calls_.VirtualFreeEx(process_, address_, 0, MEM_RELEASE);
  address_ = nullptr;
}

ReleasedBlock::~ReleasedBlock() {
  if (address_ != nullptr) calls_.VirtualFreeEx(process_, address_, 0, MEM_RELEASE);
  if (process_ != nullptr) calls_.CloseHandle(process_);
}

std::uint32_t ReleasedBlock::Address() const {
  return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(address_));
}

void ReleasedBlock::Write(const void* data, SIZE_T size) {
  if (!calls_.WriteProcessMemory(process_, address_, data, size)) throw TargetLost();
}

void ReleasedBlock::Read(void* data, SIZE_T size) const {
  if (!calls_.ReadProcessMemory(process_, address_, data, size)) throw TargetLost();
}

bool ReleasedBlock::ReadAt(std::uint64_t address, void* data, SIZE_T size) const {
  if (address + size > std::numeric_limits<std::uintptr_t>::max()) {
    return calls_.NtWow64ReadVirtualMemory64(process_, address, data, size) != FALSE;
  }
  const auto* const place = reinterpret_cast<const void*>(static_cast<std::uintptr_t>(address));
  return calls_.ReadProcessMemory(process_, place, data, size) != FALSE;
}

bool ReleasedBlock::IsReadable(std::uint64_t address) const {
  char byte = 0;
  return ReadAt(address, &byte, sizeof byte);
}

std::wstring ReleasedBlock::TextAt(std::uint64_t address) const {
  std::array<wchar_t, kPage / sizeof(wchar_t)> page{};
  std::wstring text;
  while (text.size() < kLongestText) {
    const std::size_t bytes = kPage - static_cast<std::size_t>(address % kPage);
    // A text at an odd address would have a character on two pages.
    const std::size_t whole = bytes < sizeof(wchar_t) ? sizeof(wchar_t) : bytes & ~std::size_t{1};
    if (!ReadAt(address, page.data(), whole)) break;
    const std::wstring_view piece(page.data(), whole / sizeof(wchar_t));
    const std::size_t end = piece.find(L'\0');
    text += piece.substr(0, end);
    if (end != piece.npos) break;
    address += whole;
  }
  return text;
}

}  // namespace extract
