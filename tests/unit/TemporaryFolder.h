// A folder for one test, with blanks in its name; removed with its content when the test ends.
#pragma once

#include <windows.h>

#include <filesystem>
#include <string>

#include "bed/Place.h"

class TemporaryFolder {
 public:
  TemporaryFolder() {
    static int count = 0;
    path_ = bed::Place("scratch") / (L"velmora " + std::to_wstring(GetCurrentProcessId()) + L" " +
                                     std::to_wstring(++count));
    std::filesystem::create_directories(path_);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};
