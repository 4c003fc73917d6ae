// The installer that makensis makes of installer.nsi.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "ListFixture.h"
#include "driver/ChildProcess.h"

namespace corpus {

// Of its window.
inline constexpr char kInstallerClass[] = "#32770";

// The terms that it shows.
std::filesystem::path LicenceFile();

// Starts a program in that folder, where its temporary files go too.
std::unique_ptr<gui::ChildProcess> StartIn(const std::filesystem::path& folder,
                                           const std::filesystem::path& file,
                                           const std::string& arguments);

// Starts it with that page: welcome, licence, components, folder, choices or log.
std::unique_ptr<gui::ChildProcess> StartInstaller(cross::Bits bits, const std::string& page,
                                                  const std::filesystem::path& folder);

}  // namespace corpus
