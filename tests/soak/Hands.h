// Executes the actions of a plan on the running program and its desktop.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "Plan.h"
#include "Target.h"
#include "driver/Program.h"
#include "driver/Target.h"

namespace soak {

class Hands {
 public:
  explicit Hands(const gui::Program& program);

  // Throws std::runtime_error when an action fails that must succeed: a program does not start, a
  // dialog does not open or close.
  void Do(const Action& action);

  // Closes the program's message boxes; returns how many there were.
  int CloseMessages() const { return program_.CloseMessages(); }

  // Throws std::runtime_error unless the program runs and answers. It may be in a call into a
  // program that hangs, which returns only when that program continues: then all are continued.
  void RequireProgram();
  // The names of the open programs that do not run or answer; empty when all do.
  std::string Unwell() const;
  void CloseAll();

  // Brings the program to a state in which its holdings can be compared: no capture, windows and
  // switches as at first, the last report over a small known window. Throws std::runtime_error when
  // that report is not right.
  void Settle();

  // Makes the system load for the program what it loads only once and a tour may not need: the
  // longest name on this desktop is read, because edit boxes keep the memory of their longest text,
  // and a menu opens, as Shift+F10 does when a window takes the focus.
  void WarmUp();

 private:
  void DoWithTarget(const Action& action);
  void DoInMainWindow(const Action& action);
  void DoWithKeys(const Action& action);
  void DoInDialog(const Action& action);

  void WakeAll();
  void StopCapture();
  void UncheckAll();
  void ReadKnownWindow();
  void StretchBoxes();
  void ShowSystemMenu();

  std::optional<HWND> FindDialog(const char* className) const;
  gui::Control Dialog(const char* className) const;
  void OpenDialog(const gui::Control& from, int button, const char* className);
  void CloseDialog(const char* className, int button);
  void WaitUntil(const std::string& what, const std::function<void()>& press,
                 const std::function<bool()>& done);

  const gui::Program& program_;
  // Has the focus while keys are pressed, so that they do nothing to the others.
  gui::Fixture keyCatcher_;
  std::unique_ptr<Target> targets_[kPlaces];
};

}  // namespace soak
