#include "platform/API_Shell.h"

#include <windows.h>

#include <mmsystem.h>
#include <shlobj.h>
#include <shlwapi.h>

#include <array>
#include <string_view>
#include <vector>

#include "platform/DiskFile.h"
#include "platform/ErrorReport.h"
#include "platform/Trim.h"
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

namespace {

// The path between its quotes; throws when the closing one is missing.
std::wstring_view WithoutQuotes(std::wstring_view path) {
  if (!path.starts_with(L'"')) return path;
  if (path.size() < 2 || !path.ends_with(L'"')) throw platform::InvalidArgument();
  return path.substr(1, path.size() - 2);
}

std::wstring Canonical(const std::wstring& path) {
  std::array<wchar_t, MAX_PATH> result{};
  PathCanonicalizeW(result.data(), path.c_str());
  return result.data();
}

std::wstring Joined(const std::wstring& base, std::wstring_view path) {
  if (path.find(L"..\\") != path.npos) return Canonical(base + std::wstring(path));
  if (path.starts_with(L".\\")) return base + std::wstring(path.substr(2));
  const bool onDrive = path.size() >= 3 && path.substr(1, 2) == L":\\";
  if (path.starts_with(L"\\\\") || onDrive) return std::wstring(path);
  return base + std::wstring(path);
}

}  // namespace

std::wstring AbsolutePath(const std::wstring& path, const std::wstring& base) {
  std::wstring folder = base.empty() ? ProgramFolder() : base;
  if (platform::IsDirectory(folder)) folder += L'\\';
  try {
    const std::wstring result = Joined(folder, WithoutQuotes(platform::Trimmed(path)));
    return result.find(L' ') == result.npos ? result : L'"' + result + L'"';
  } catch (const platform::NumberedError& error) {
    // The number after the description. Odd, and stays: docs/ODDITIES.md.
    platform::ShowMessage(error.Description() + L" " + std::to_wstring(error.Number()),
                          L"AbsolutePath");
    return path;
  }
}

std::wstring ExplorerCommand(const std::wstring& target) { return L"explorer.exe " + target; }

void OpenWithExplorer(const std::wstring& target) {
  std::wstring command = ExplorerCommand(target);
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
