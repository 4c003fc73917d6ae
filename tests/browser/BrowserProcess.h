// The browser fixture, run in its own process.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "driver/Control.h"
#include "driver/FixtureProcess.h"

namespace html {

class BrowserProcess {
 public:
  // words: of its command line, see FixtureMain.cpp. Waits until its windows exist. Throws
  // std::runtime_error when that does not happen.
  explicit BrowserProcess(std::string_view words);

  // "main", "document", "combo" or "list". Throws std::out_of_range.
  gui::Control operator[](const std::string& name) const;
  HWND Window() const { return process_["document"]; }
  bool IsRunning() const { return process_.IsRunning(); }
  gui::ChildProcess& Process() { return process_.Process(); }
  const gui::ChildProcess& Process() const { return process_.Process(); }

  // What others hold of the page's objects; how many members were called; how often the document
  // was requested. -1 when the fixture does not answer.
  int References() const;
  int Calls() const;
  int Requests() const;

 private:
  int Ask(UINT message) const;

  gui::FixtureProcess process_;
};

}  // namespace html
