#include "report/Elevation.h"

#include "platform/UniqueHandle.h"

namespace report {

// A process of this user whose token may not be read runs as administrator: that is what keeps
// others out.
std::optional<bool> IsElevated(HANDLE process) {
  HANDLE opened = nullptr;
  if (!OpenProcessToken(process, TOKEN_QUERY, &opened)) {
    return GetLastError() == ERROR_ACCESS_DENIED ? std::optional<bool>(true) : std::nullopt;
  }
  const platform::UniqueKernelHandle token(opened);
  TOKEN_ELEVATION elevation{};
  DWORD size = 0;
  if (!GetTokenInformation(token.Get(), TokenElevation, &elevation, sizeof elevation, &size)) {
    return std::nullopt;
  }
  return elevation.TokenIsElevated != 0;
}

bool RunsAboveThisProgram(HWND hwnd) {
  if (IsElevated(GetCurrentProcess()).value_or(true)) return false;
  DWORD processId = 0;
  GetWindowThreadProcessId(hwnd, &processId);
  const platform::UniqueKernelHandle process(
      OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processId));
  return process && IsElevated(process.Get()).value_or(false);
}

}  // namespace report
