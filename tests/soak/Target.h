// One program on the soak's desktop.
#pragma once

#include <windows.h>

#include <memory>
#include <string>

#include "ListFixture.h"
#include "Plan.h"
#include "TargetKinds.h"
#include "accessible/FixtureProcess.h"
#include "browser/BrowserProcess.h"
#include "driver/ChildProcess.h"
#include "driver/Target.h"

namespace soak {

class Target {
 public:
  // Starts a program of that kind and waits until its window is at that place. Throws
  // std::runtime_error when that does not happen.
  Target(const TargetKind& kind, const Place& place);

  // It runs and its window answers; it may have ended only if it is of a kind that does.
  bool IsWell() const;
  std::string Name() const { return kind_->name; }

  // Closes it; by force when it does not end.
  void Close();
  void Kill();
  // Stops all its threads, in the middle of whatever they do.
  void Hang();
  void Wake();

 private:
  void StartSystemProgram();
  void StartInstaller();
  void StartFixture(const std::string& words);
  void StartLists(const std::string& words);
  void StartAccessible(const std::string& words);
  void StartBrowser(const std::string& words);

  // Not all of them can have another size.
  void MoveTo(const Place& place);

  const TargetKind* kind_;
  std::unique_ptr<gui::WineProgram> program_;
  std::unique_ptr<gui::ChildProcess> installer_;
  std::unique_ptr<gui::Fixture> fixture_;
  std::unique_ptr<cross::ListFixture> lists_;
  std::unique_ptr<accessible::FixtureProcess> accessible_;
  std::unique_ptr<html::BrowserProcess> browser_;
  gui::ChildProcess* process_ = nullptr;
  HWND window_ = nullptr;
};

}  // namespace soak
