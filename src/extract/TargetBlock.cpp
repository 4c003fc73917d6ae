#include "extract/TargetBlock.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

#include "platform/TextCodec.h"

namespace extract {
namespace {

constexpr std::size_t kLongestText = 256;

// A text that fills its block may end with the first half of a character.
std::string_view WholeCharacters(std::string_view bytes) {
  std::size_t at = 0;
  while (at < bytes.size()) {
    const std::size_t step = IsDBCSLeadByte(static_cast<BYTE>(bytes[at])) ? 2 : 1;
    if (at + step > bytes.size()) break;
    at += step;
  }
  return bytes.substr(0, at);
}

}  // namespace

TargetBlock::TargetBlock(MyMapView::MemoryCalls& calls, DWORD processId, const BlockSize& size)
    : calls_(calls), remote_(MyMapView::IsNT(calls)), released_(size.released) {
  address_ = remote_ ? MyMapView::AllocRemote(calls, processId, size.remote, process_)
                     : MyMapView::OpenShared(calls, size.sharedName);
}

TargetBlock::~TargetBlock() {
  if (address_ == nullptr) {
    if (process_ != nullptr) calls_.CloseHandle(process_);
  } else if (remote_) {
    MyMapView::FreeRemote(calls_, process_, address_, released_);
  } else {
    MyMapView::CloseShared(calls_, nullptr, address_);
  }
}

std::uint32_t TargetBlock::Address() const { return reinterpret_cast<std::uintptr_t>(address_); }

void TargetBlock::Write(const void* data, SIZE_T size) {
  if (!remote_) {
    std::memcpy(address_, data, size);
  } else if (!calls_.WriteProcessMemory(process_, address_, data, size)) {
    throw TargetLost();
  }
}

void TargetBlock::Read(void* data, SIZE_T size) const {
  if (!remote_) {
    std::memcpy(data, address_, size);
  } else if (!calls_.ReadProcessMemory(process_, address_, data, size)) {
    throw TargetLost();
  }
}

std::wstring TargetBlock::ReadText(SIZE_T size) const {
  std::array<char, kLongestText> buffer{};
  const std::string_view bytes(buffer.data(), std::min<std::size_t>(size, buffer.size()));
  Read(buffer.data(), bytes.size());
  const std::size_t end = bytes.find('\0');
  return platform::FromAnsi(end == bytes.npos ? WholeCharacters(bytes) : bytes.substr(0, end));
}

}  // namespace extract
