#include "platform/API_Shell.h"

#include <windows.h>

#include <mmsystem.h>
#include <shlobj.h>

#include <array>
#include <string_view>
#include <vector>

#include "platform/UniqueHandle.h"

namespace API_Shell {

std::wstring FolderPath(unsigned char folderId) {
  std::array<wchar_t, MAX_PATH> path{};
  if (SHGetFolderPathW(nullptr, folderId, nullptr, SHGFP_TYPE_CURRENT, path.data()) != S_OK) {
    return {};
  }
  return path.data();
}

std::wstring ProgramFolder() {
  std::vector<wchar_t> path(MAX_PATH);
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      const std::wstring_view program(path.data(), length);
      return std::wstring(program.substr(0, program.rfind(L'\\')));
    }
    path.resize(path.size() * 2);
  }
}

void OpenWithExplorer(const std::wstring& target) {
  std::wstring command = L"explorer.exe " + target;
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION process{};
  if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                     &startup, &process)) {
    const platform::UniqueKernelHandle thread(process.hThread);
    const platform::UniqueKernelHandle handle(process.hProcess);
  }
}

unsigned SoundFlags(bool repeat) { return repeat ? SND_LOOP : SND_SYNC; }

bool PlaySoundFile(const std::wstring& path, bool repeat) {
  return sndPlaySoundW(path.c_str(), SoundFlags(repeat)) != FALSE;
}

}  // namespace API_Shell
