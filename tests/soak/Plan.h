// What a soak does: an endless sequence of actions that only its seed determines, so that a failing
// run can be repeated. Nothing here uses a clock, a window or a result.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "Action.h"

namespace soak {

// The places of programs on the desktop, left of the main window.
inline constexpr int kPlaces = 6;
struct Place {
  int left, top, width, height;
};
Place PlaceOnDesktop(int index);

// Where the main window begins and how large it is at first.
inline constexpr Place kMainWindow{860, 20, 400, 560};

class Plan {
 public:
  explicit Plan(std::uint32_t seed) : random_(seed) {}

  // A settings file with random values; only with mayEndItself can the program close by itself.
  std::string Settings(bool mayEndItself);

  // Each kind of program and each kind of action at least once, then everything closed.
  std::vector<Action> Tour();

  // One program opened and pointed at, for a short run of the program under test.
  std::vector<Action> Glance();

  // The next random action. Each fits the ones before: a dialog's control is used while the dialog
  // is open, a program is closed that was opened.
  Action Next();

  // The actions that calm the desktop: dialogs are closed, programs continued. Open programs stay
  // open.
  std::vector<Action> Rest();

 private:
  struct Slot {
    std::optional<std::size_t> kind;
    bool hung = false;
  };
  enum class Dialog { kNone, kSettings, kHotKeys };
  using Maker = std::optional<Action> (Plan::*)();
  struct Weighted {
    int weight;
    Maker maker;
  };

  int Below(int limit);
  bool Chance(int percent) { return Below(100) < percent; }
  template <typename Container>
  auto OneOf(const Container& values) {
    return values[static_cast<std::size_t>(Below(static_cast<int>(std::size(values))))];
  }
  int AnyPlace(bool open);

  std::optional<Action> Move();
  std::optional<Action> MoveAnywhere();
  std::optional<Action> RestAWhile();
  std::optional<Action> Open();
  std::optional<Action> Close();
  std::optional<Action> Kill();
  std::optional<Action> Hang();
  std::optional<Action> Wake();
  std::optional<Action> UseMainWindow();
  std::optional<Action> ChangeMainWindow();
  std::optional<Action> Key();
  std::optional<Action> Dialogs();
  std::optional<Action> UseSettings();

  // Notes the state after an action.
  Action Noted(const Action& action);

  std::mt19937 random_;
  Slot slots_[kPlaces];
  Dialog dialog_ = Dialog::kNone;
  int hotKey_ = 2;        // ESC
  int chosenHotKey_ = 2;  // in the open dialog
};

}  // namespace soak
