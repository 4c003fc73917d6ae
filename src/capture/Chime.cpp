#include "capture/Chime.h"

#include "platform/API_Shell.h"
#include "platform/DiskFile.h"
#include "platform/MessagePump.h"

namespace capture {

std::wstring ChimePath(const std::wstring& file, const std::wstring& programFolder,
                       const std::wstring& windowsFolder) {
  for (const std::wstring& folder : {programFolder, windowsFolder + L"\\media"}) {
    std::wstring path = folder + L"\\" + file;
    if (platform::IsNormalFile(path)) return path;
  }
  return {};
}

void PlayChime(const std::wstring& file) {
  const std::wstring path =
      ChimePath(file, API_Shell::ProgramFolder(), API_Shell::FolderPath(API_Shell::kWindowsFolder));
  if (path.empty()) return;
  API_Shell::PlaySoundFile(path, false);
  platform::Pump();
}

}  // namespace capture
