// A program whose windows the tests capture.
#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <string_view>

#include "driver/ChildProcess.h"
#include "driver/Control.h"
#include "driver/FixtureProcess.h"

namespace gui {

// The fixture program: windows of known class, text and place. See tests/fixture/Main.cpp for the
// words of its command line.
class Fixture {
 public:
  // Waits until the fixture reports that its windows exist.
  explicit Fixture(std::string_view words);

  // The window of that kind, or "main" for the top-level window. Throws when it was not requested.
  Control operator[](const std::string& kind) const;

  // Makes the fixture stop answering for that time.
  void Hang(Milliseconds time) const;

  ChildProcess& Process() { return process_.Process(); }

 private:
  FixtureProcess process_;
};

// A program that comes with Wine.
class WineProgram {
 public:
  // `program` is a file name in the Windows or system folder. Waits for a visible window of that
  // class that answers.
  WineProgram(std::string_view program, std::string_view arguments, std::string_view className);

  Control Window() const { return {window_, "the target's window"}; }
  ChildProcess& Process() const { return *process_; }
  // The first visible window of that class inside. Waits for it.
  Control Inside(std::string_view className) const;
  // A width of 0 keeps the size, for windows that have one of their own.
  void MoveTo(int left, int top, int width, int height) const;

 private:
  std::unique_ptr<ChildProcess> process_;
  HWND window_;
};

}  // namespace gui
