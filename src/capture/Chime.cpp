#include "capture/Chime.h"

#include "platform/API_Shell.h"
#include "platform/DiskFile.h"
#include "platform/MessagePump.h"

namespace capture {

std::wstring ChimeCalls::ProgramFolder() { return API_Shell::ProgramFolder(); }

std::wstring ChimeCalls::WindowsFolder() {
  return API_Shell::FolderPath(API_Shell::kWindowsFolder);
}

bool ChimeCalls::IsFile(const std::wstring& path) { return platform::IsNormalFile(path); }

void ChimeCalls::Play(const std::wstring& path) { API_Shell::PlaySoundFile(path, false); }

void ChimeCalls::Pump() { platform::Pump(); }

void PlayChime(const std::wstring& file, ChimeCalls& calls) {
  std::wstring path = calls.ProgramFolder() + L"\\" + file;
  if (!calls.IsFile(path)) path = calls.WindowsFolder() + L"\\media\\" + file;
  if (!calls.IsFile(path)) return;
  calls.Play(path);
  calls.Pump();
}

}  // namespace capture
