// The programs that a soak puts on its desktop.
#pragma once

#include <cstddef>
#include <span>

namespace soak {

enum class Source { kSystem, kInstaller, kFixture, kLists, kAccessible, kBrowser };

struct TargetKind {
  const char* name;  // for reports
  Source source;
  const char* words;  // the program's file name, the installer's page, or the words of the fixture
  bool mayDie;        // ends by itself when it is read
};

std::span<const TargetKind> TargetKinds();

}  // namespace soak
