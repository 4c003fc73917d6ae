#include "TargetRoom.h"

#include <algorithm>
#include <stdexcept>

namespace cross {

int Ask(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
  DWORD_PTR answer = 0;
  if (!SendMessageTimeoutW(control, message, wParam, lParam, SMTO_NORMAL, 20'000, &answer)) {
    throw std::runtime_error("the control does not answer");
  }
  return static_cast<int>(answer);
}

TargetRoom::TargetRoom(HWND control) {
  DWORD processId = 0;
  GetWindowThreadProcessId(control, &processId);
  process_.reset(OpenProcess(PROCESS_ALL_ACCESS, FALSE, processId));
  base_ = VirtualAllocEx(process_.get(), nullptr, kTextAt + 2 * kTextLength, MEM_COMMIT,
                         PAGE_READWRITE);
  if (base_ == nullptr) throw std::runtime_error("no room in the target");
}

TargetRoom::~TargetRoom() { VirtualFreeEx(process_.get(), base_, 0, MEM_RELEASE); }

void TargetRoom::Put(const std::vector<std::uint32_t>& record) const {
  std::vector<char> bytes(kTextAt + 2 * kTextLength);
  std::copy_n(reinterpret_cast<const char*>(record.data()), record.size() * 4, bytes.data());
  WriteProcessMemory(process_.get(), base_, bytes.data(), bytes.size(), nullptr);
}

std::wstring TargetRoom::TakeText(std::size_t at) const {
  std::vector<wchar_t> text(kTextLength);
  ReadProcessMemory(process_.get(), static_cast<const char*>(base_) + at, text.data(),
                    2 * (kTextLength - 1), nullptr);
  return text.data();
}

std::uint32_t TargetRoom::TakeField(std::size_t index) const {
  std::uint32_t field = 0;
  ReadProcessMemory(process_.get(), static_cast<const char*>(base_) + 4 * index, &field, 4,
                    nullptr);
  return field;
}

}  // namespace cross
