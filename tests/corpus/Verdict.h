// What a report shows of a window, against what the window holds.
#pragma once

#include <windows.h>

#include <string>

#include "Pointing.h"
#include "WindowTexts.h"

namespace corpus {

// A closed list: nothing else may happen to a window.
enum class Outcome {
  kWhole,           // everything, with the default settings
  kWholeByRequest,  // with the setting "read whole"; a text beyond 4,095 characters, or a list view
  kNamesCut,        // everything but the ends of names longer than "accname max"
  kNoText,          // the window holds none
  kPainted,         // nor does it hold its items' texts, which its program paints
  kNoPlace,         // it cannot be pointed at: see Hindrance
  kItsParts,
  kCovered,
  kUnderLabel,
  kHung,    // it does not answer
  kUnread,  // and this one not at all
};

constexpr int kOutcomes = static_cast<int>(Outcome::kUnread) + 1;

// In words.
const char* NameOf(Outcome outcome);

struct Verdict {
  Outcome outcome = Outcome::kUnread;
  std::wstring way;     // how it was read
  std::string missing;  // of a window that is unread: why
  WindowTexts texts;
};

// Points at the window and reads it as a report does. A text that changes meanwhile is read again.
Verdict Judge(HWND window);

}  // namespace corpus
