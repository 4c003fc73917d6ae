#include "ProcessorTime.h"

#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "bed/Needs.h"
#include "driver/Owners.h"
#include "driver/Text.h"

namespace bench {
namespace {

constexpr wchar_t kHostTable[] = L"Z:\\proc\\";

// Files of the host's table tell no size, so they are read piece by piece.
std::string ReadAll(const std::filesystem::path& file) {
  const HANDLE handle = CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, OPEN_EXISTING, 0, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return "";
  const gui::OwnedHandle owned(handle);
  std::string content;
  char piece[512];
  DWORD count = 0;
  while (ReadFile(handle, piece, sizeof piece, &count, nullptr) && count > 0) {
    content.append(piece, count);
  }
  return content;
}

struct FindCloseCall {
  void operator()(void* search) const { FindClose(search); }
};

std::vector<std::wstring> NumericEntries(const std::filesystem::path& folder) {
  std::vector<std::wstring> names;
  WIN32_FIND_DATAW entry = {};
  const HANDLE handle = FindFirstFileW((folder / L"*").c_str(), &entry);
  if (handle == INVALID_HANDLE_VALUE) return names;
  const std::unique_ptr<void, FindCloseCall> search(handle);
  do {
    if (entry.cFileName[0] >= L'0' && entry.cFileName[0] <= L'9') names.push_back(entry.cFileName);
  } while (FindNextFileW(handle, &entry));
  return names;
}

std::filesystem::path HostEntryOf(const std::filesystem::path& program) {
  const std::string wanted = gui::ToUtf8(program.wstring());
  for (const std::wstring& name : NumericEntries(kHostTable)) {
    const std::filesystem::path entry = std::filesystem::path(kHostTable) / name;
    if (ReadAll(entry / L"cmdline").find(wanted) != std::string::npos) return entry;
  }
  throw std::runtime_error("not in the host's process table: " + wanted);
}

double Milliseconds(const FILETIME& time) {
  const ULONGLONG ticks = static_cast<ULONGLONG>(time.dwHighDateTime) << 32U | time.dwLowDateTime;
  return static_cast<double>(ticks) / 10000;
}

}  // namespace

ProcessorTime::ProcessorTime(HANDLE process, const std::filesystem::path& program)
    : process_(process) {
  if (bed::OnWine()) hostEntry_ = HostEntryOf(program);
}

double ProcessorTime::Now() const {
  if (hostEntry_.empty()) {
    FILETIME created, ended, kernel, user;
    GetProcessTimes(process_, &created, &ended, &kernel, &user);
    return Milliseconds(kernel) + Milliseconds(user);
  }
  // The first number of a thread's line is the time it ran, in nanoseconds.
  double sum = 0;
  for (const std::wstring& thread : NumericEntries(hostEntry_ / L"task")) {
    double nanoseconds = 0;
    std::istringstream(ReadAll(hostEntry_ / L"task" / thread / L"schedstat")) >> nanoseconds;
    sum += nanoseconds / 1e6;
  }
  return sum;
}

}  // namespace bench
