// One thing that a soak does.
#pragma once

#include <string>

namespace soak {

enum class Do {
  // The pointer, in screen pixels.
  kMove,   // to a, b
  kSweep,  // from where it is to a, b without a rest
  kRest,   // for a milliseconds

  // The programs on the desktop; a is their place on it.
  kOpen,   // of kind b
  kClose,  // politely
  kKill,
  kHang,  // until it is woken
  kWake,

  // The main window; a is the number of a control.
  kGo,  // starts a capture unless one runs
  kPress,
  kClick,
  kDoubleClick,
  kDragSplitter,  // by a pixels
  kResize,        // to a by b pixels

  // Keys.
  kHotKey,     // entry a of the hot-key list
  kFront,      // Alt+T
  kSelectAll,  // Ctrl+A in the main window
  kActionKey,  // Ctrl

  // The dialogs; a is the number of a control, b the entry of a list or the number to type.
  kOpenSettings,
  kMoveSettings,  // to a, b, in screen pixels
  kPressInSettings,
  kChooseInSettings,
  kTypeInSettings,
  kCloseSettings,
  kOpenHotKeys,
  kChooseHotKey,
  kCloseHotKeys,  // with button a
};

struct Action {
  Do what = Do::kRest;
  int a = 0;
  int b = 0;

  bool operator==(const Action&) const = default;
};

// "open listview-dies at place 3", for the report of a failure.
std::string ToText(const Action& action);

}  // namespace soak
