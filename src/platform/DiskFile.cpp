#include "platform/DiskFile.h"

#include <windows.h>

#include <algorithm>

namespace platform {
namespace {

constexpr std::size_t kPiece = 1U << 20;

UniqueKernelHandle Open(const std::wstring& path, DWORD access, DWORD disposition) {
  const HANDLE handle = CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
  return UniqueKernelHandle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

}  // namespace

bool IsDirectory(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool IsListed(DWORD attributes) {
  return (attributes &
          (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) == 0;
}

bool IsNormalFile(const std::wstring& path) {
  WIN32_FIND_DATAW found{};
  const HANDLE first = FindFirstFileW(path.c_str(), &found);
  if (first == INVALID_HANDLE_VALUE) return false;
  const UniqueFileSearch search(first);
  do {
    if (IsListed(found.dwFileAttributes)) return true;
  } while (FindNextFileW(search.Get(), &found));
  return false;
}

std::string ReadWholeFile(const std::wstring& path) {
  const UniqueKernelHandle file = Open(path, GENERIC_READ, OPEN_EXISTING);
  std::string bytes;
  DWORD count = 0;
  do {
    const std::size_t done = bytes.size();
    bytes.resize(done + kPiece);
    count = 0;
    if (!file || !ReadFile(file.Get(), bytes.data() + done, kPiece, &count, nullptr)) count = 0;
    bytes.resize(done + count);
  } while (count > 0);
  return bytes;
}

NewFile::NewFile(const std::wstring& path) : handle_(Open(path, GENERIC_WRITE, CREATE_ALWAYS)) {}

bool NewFile::Write(std::string_view bytes) {
  while (handle_ && !bytes.empty()) {
    const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kPiece));
    DWORD count = 0;
    if (!WriteFile(handle_.Get(), bytes.data(), wanted, &count, nullptr) || count == 0) {
      handle_ = {};
    }
    bytes.remove_prefix(count);
  }
  return static_cast<bool>(handle_);
}

}  // namespace platform
