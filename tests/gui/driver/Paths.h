// Where the tested programs are and where tests may write.
#pragma once

#include <filesystem>
#include <string>

namespace gui {

// What users get: the folder of the unpacked package, and the program in it. Not to be run there,
// where its settings would stay.
std::filesystem::path PackageFolder();
std::filesystem::path ProgramFile();

// Copies what the package holds into a folder that exists.
void CopyPackageTo(const std::filesystem::path& folder);

std::filesystem::path FixtureFile();
std::filesystem::path CommandRecorderFile();

// A folder of the running test, emptied; its name contains the test's name. Its path contains
// blanks and Japanese characters, as users' folders do.
std::filesystem::path FreshFolder();

// Created when missing.
std::filesystem::path ScreenshotFolder();

// "Suite.Test" of the running test, with characters that no file name can hold replaced.
std::string TestName();

}  // namespace gui
