#include "Installer.h"

#include <windows.h>

#include "driver/Paths.h"

namespace corpus {

std::filesystem::path LicenceFile() { return gui::FromBuildPath(CORPUS_LICENCE_FILE); }

std::unique_ptr<gui::ChildProcess> StartIn(const std::filesystem::path& folder,
                                           const std::filesystem::path& file,
                                           const std::string& arguments) {
  SetEnvironmentVariableW(L"TEMP", folder.c_str());
  SetEnvironmentVariableW(L"TMP", folder.c_str());
  return std::make_unique<gui::ChildProcess>(file, arguments, folder);
}

std::unique_ptr<gui::ChildProcess> StartInstaller(cross::Bits bits, const std::string& page,
                                                  const std::filesystem::path& folder) {
  const char* file = bits == cross::Bits::k64 ? CORPUS_INSTALLER64_FILE : CORPUS_INSTALLER_FILE;
  return StartIn(folder, gui::FromBuildPath(file), "/page=" + page);
}

}  // namespace corpus
