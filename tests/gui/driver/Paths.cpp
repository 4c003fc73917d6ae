#include "driver/Paths.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "bed/Place.h"

namespace gui {
std::filesystem::path PackageFolder() { return bed::Place("package/unpacked/Velmora"); }

std::filesystem::path ProgramFile() { return PackageFolder() / "Velmora.exe"; }

// Entry by entry: on Windows the library's copy of a whole tree fails for a folder that exists.
void CopyPackageTo(const std::filesystem::path& folder) {
  for (const auto& entry : std::filesystem::recursive_directory_iterator(PackageFolder())) {
    const auto target = folder / entry.path().lexically_relative(PackageFolder());
    if (entry.is_directory()) {
      std::filesystem::create_directory(target);
    } else {
      std::filesystem::copy_file(entry.path(), target);
    }
  }
}

std::filesystem::path FixtureFile() { return bed::Place("tests/fixture/fixture.exe"); }

std::filesystem::path CommandRecorderFile() { return bed::Place("tests/gui/command_recorder.exe"); }

std::string TestName() {
  const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
  if (test == nullptr) return "no test";
  std::string name = std::string(test->test_suite_name()) + "." + test->name();
  std::replace(name.begin(), name.end(), '/', '-');
  return name;
}

std::filesystem::path FreshFolder() {
  const std::filesystem::path folder = bed::Place("scratch") / L"列取得 の 試験" / TestName();
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  return folder;
}

std::filesystem::path ScreenshotFolder() {
  const std::filesystem::path folder = bed::Place("screenshots");
  std::filesystem::create_directories(folder);
  return folder;
}

}  // namespace gui
