// Texts that a control gives through records: the control gets a record with the address of a
// buffer, fills the buffer, or answers with the address of a text of its own.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "extract/ControlAccess.h"
#include "extract/ItemReading.h"
#include "extract/MyMapView.h"
#include "extract/ReleasedBlock.h"

namespace extract {

// Records of one kind with a buffer each, all in one block of the target: they go over in one call
// and come back in one call.
template <typename Record>
class RecordBatch {
 public:
  // room: characters of each buffer.
  RecordBatch(const ControlAccess& access, DWORD processId, std::size_t count, std::size_t room)
      : room_(room),
        stride_((sizeof(Record) + room * sizeof(wchar_t) + 7) / 8 * 8),
        bytes_(count * stride_),
        block_(access.memory, processId, count * stride_) {}

  bool IsReady() const { return block_.IsReady(); }
  const ReleasedBlock& Block() const { return block_; }

  // The address of a record in the target, as a message's parameter.
  LPARAM Parameter(std::size_t index) const { return static_cast<LPARAM>(AddressOf(index)); }

  // Notes what is asked next; text and capacity are filled in.
  void Ask(std::size_t index, Record record) {
    record.text = BufferOf(index);
    record.capacity = static_cast<std::int32_t>(room_);
    std::memcpy(bytes_.data() + index * stride_, &record, sizeof record);
    // A control that gives nothing must not leave the text of another item.
    std::memset(bytes_.data() + index * stride_ + sizeof record, 0, sizeof(wchar_t));
  }

  // The first count records: over to the target, and back. Throw TargetLost.
  void Write(std::size_t count) { block_.Write(bytes_.data(), count * stride_); }
  void Read(std::size_t count) { block_.Read(bytes_.data(), count * stride_); }

  // Whether the text fills its buffer and may be longer.
  bool IsFull(std::size_t index) const {
    return AnsweredWith(index) == BufferOf(index) && InBuffer(index).size() + 1 >= room_;
  }

  std::wstring Text(std::size_t index) const {
    const std::uint64_t answer = AnsweredWith(index);
    if (answer == BufferOf(index)) return std::wstring(InBuffer(index));
    // The control has no text for the item, or asks its parent for it each time.
    const std::uint64_t callback = static_cast<decltype(Record::text)>(-1);
    return answer == 0 || answer == callback ? std::wstring() : block_.TextAt(answer);
  }

 private:
  std::uint32_t AddressOf(std::size_t index) const {
    return block_.Address() + static_cast<std::uint32_t>(index * stride_);
  }
  std::uint32_t BufferOf(std::size_t index) const {
    return AddressOf(index) + static_cast<std::uint32_t>(sizeof(Record));
  }
  std::uint64_t AnsweredWith(std::size_t index) const {
    Record record;
    std::memcpy(&record, bytes_.data() + index * stride_, sizeof record);
    return record.text;
  }
  std::wstring_view InBuffer(std::size_t index) const {
    const char* const start = bytes_.data() + index * stride_ + sizeof(Record);
    const std::wstring_view buffer(reinterpret_cast<const wchar_t*>(start), room_);
    return buffer.substr(0, buffer.find(L'\0'));
  }

  std::size_t room_;
  std::size_t stride_;
  std::vector<char> bytes_;
  ReleasedBlock block_;
};

// One text at a time, however long.
template <typename Record>
class RecordText {
 public:
  RecordText(HWND hwnd, const ControlAccess& access)
      : hwnd_(hwnd), access_(access), processId_(access.messages.ProcessOf(hwnd)) {
    MakeRoom(kUsualRoom);
  }

  bool IsReady() const { return batch_->IsReady(); }
  const ReleasedBlock& Block() const { return batch_->Block(); }

  // What the message gives for the record. Throws TargetLost.
  std::wstring Ask(const Record& record, UINT message, WPARAM wParam) {
    if (room_ != kUsualRoom) MakeRoom(kUsualRoom);
    std::wstring text;
    // Without room for more, the start of the text is better than nothing.
    while (IsReady()) {
      batch_->Ask(0, record);
      batch_->Write(1);
      access_.messages.Send(hwnd_, message, wParam, batch_->Parameter(0));
      batch_->Read(1);
      text = batch_->Text(0);
      if (!batch_->IsFull(0) || room_ == kMostRoom) break;
      MakeRoom(room_ * kMoreRoom);
    }
    return text;
  }

 private:
  static constexpr std::size_t kUsualRoom = 512;  // characters
  static constexpr std::size_t kMoreRoom = 64;
  static constexpr std::size_t kMostRoom = kUsualRoom * kMoreRoom * kMoreRoom;

  void MakeRoom(std::size_t room) {
    room_ = room;
    batch_ = std::make_unique<RecordBatch<Record>>(access_, processId_, 1, room);
  }

  HWND hwnd_;
  ControlAccess access_;
  DWORD processId_;
  std::size_t room_ = 0;
  std::unique_ptr<RecordBatch<Record>> batch_;
};

// What read(Record<Pointer>()) returns, with the pointers of the control's process; nothing when it
// is unknown whether that is a 64-bit one, and when read fails.
template <template <typename> class Record, typename Read>
Method InTargetsBitness(HWND hwnd, const ControlAccess& access, Read&& read) {
  return MethodOf([&]() -> Method {
    const std::optional<bool> is64 =
        MyMapView::IsProcess64(access.memory, access.messages.ProcessOf(hwnd));
    if (!is64) return {};
    return *is64 ? read(Record<std::uint64_t>()) : read(Record<std::uint32_t>());
  });
}

}  // namespace extract
