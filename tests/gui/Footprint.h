// The content of the system drive and of the registry, so that two moments can be compared.
#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>

namespace gui {

class Footprint {
 public:
  // All of drive C and of the registry, and everything in `folder`.
  static Footprint Now(const std::filesystem::path& folder);

  // The paths and keys that were created, removed or written since then. A file that was created
  // and removed again shows as its folder.
  std::set<std::string> ChangesSince(const Footprint& before) const;

  std::size_t Files() const { return files_.size(); }
  std::size_t Keys() const { return keys_.size(); }

 private:
  using Stamps = std::map<std::string, std::string>;  // what was found, and when it was written
  Stamps files_;
  Stamps keys_;
};

}  // namespace gui
