#include "Installer.h"

#include <windows.h>

#include "bed/Place.h"

namespace corpus {

std::filesystem::path LicenceFile() { return bed::Place("tests/corpus/licence.txt"); }

std::unique_ptr<gui::ChildProcess> StartIn(const std::filesystem::path& folder,
                                           const std::filesystem::path& file,
                                           const std::string& arguments) {
  SetEnvironmentVariableW(L"TEMP", folder.c_str());
  SetEnvironmentVariableW(L"TMP", folder.c_str());
  return std::make_unique<gui::ChildProcess>(file, arguments, folder);
}

std::unique_ptr<gui::ChildProcess> StartInstaller(cross::Bits bits, const std::string& page,
                                                  const std::filesystem::path& folder) {
  return StartIn(folder,
                 bed::Place(bits == cross::Bits::k64 ? "tests/corpus/installer-amd64.exe"
                                                     : "tests/corpus/installer-x86.exe"),
                 "/page=" + page);
}

}  // namespace corpus
