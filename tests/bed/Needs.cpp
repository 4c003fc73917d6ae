#include "bed/Needs.h"

#include <windows.h>

#include <shlobj.h>

#include <filesystem>

namespace bed {
namespace {

bool IsSet(const wchar_t* variable) { return GetEnvironmentVariableW(variable, nullptr, 0) != 0; }

bool DesktopHasSavedTexts() {
  wchar_t desktop[MAX_PATH] = {};
  SHGetFolderPathW(nullptr, CSIDL_DESKTOPDIRECTORY, nullptr, SHGFP_TYPE_CURRENT, desktop);
  for (const wchar_t* const pane : {L"上段", L"下段"}) {
    const std::wstring name = std::wstring(L"文字数オーバー") + pane + L"(Velmora).txt";
    if (std::filesystem::exists(std::filesystem::path(desktop) / name)) return true;
  }
  return false;
}

}  // namespace

bool OnWine() {
  return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

bool Is64BitSystem() {
  BOOL emulated = FALSE;
  return IsWow64Process(GetCurrentProcess(), &emulated) && emulated;
}

bool IsTestBed() { return IsSet(L"VELMORA_TEST_BED"); }

Need System32() { return {!Is64BitSystem(), "needs a 32-bit Windows", false}; }

Need System64() { return {Is64BitSystem(), "needs a 64-bit Windows", false}; }

Need CodePage932() { return {GetACP() == 932, "needs a Windows in code page 932"}; }

Need ProgramsOfWine() { return {OnWine(), "needs the programs that come with Wine"}; }

Need ObjectsOfWine() {
  return {OnWine(), "needs controls with the bare accessible objects that Wine gives them"};
}

Need CountersOfWine() {
  return {OnWine(), "counts handles and drawing objects where Wine keeps them"};
}

Need ResolutionAtOnce() {
  return {OnWine(), "changes the resolution, for which Windows needs a new log-on"};
}

Need QuietSystem() {
  return {OnWine(),
          "compares the whole system drive and registry, to which Windows writes all the time"};
}

Need ThePointer() {
  return {!IsSet(L"VELMORA_LEAVE_POINTER"), "takes the pointer, which is to be left alone"};
}

// A Wine that was just given another resolution has its own again for the next program.
Need ScreenForAllWindows() {
  return {(OnWine() || GetDpiForSystem() == 96) && GetSystemMetrics(SM_CXSCREEN) >= 1280 &&
              GetSystemMetrics(SM_CYSCREEN) >= 1024,
          "needs a screen of 1280 x 1024 pixels or more at 100 %"};
}

Need DesktopWithoutSavedTexts() {
  return {IsTestBed() || !DesktopHasSavedTexts(),
          "deletes saved over-long texts from the desktop, where such files are already"};
}

}  // namespace bed
