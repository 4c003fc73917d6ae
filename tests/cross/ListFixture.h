// The program with list-type controls, in its own process.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "bed/Needs.h"
#include "driver/FixtureProcess.h"

namespace cross {

enum class Bits { k32, k64 };

// A system that runs such programs.
bed::Need SystemFor(Bits bits);

class ListFixture {
 public:
  // Waits until its controls exist. See fixture/Main.cpp for the words.
  ListFixture(Bits bits, std::string_view words);

  // The control of that kind. Throws when it was not requested.
  HWND operator[](const std::string& kind) const { return process_[kind]; }
  gui::ChildProcess& Process() { return process_.Process(); }

 private:
  gui::FixtureProcess process_;
};

}  // namespace cross
