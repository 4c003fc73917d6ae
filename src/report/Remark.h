// What a report could not show, and the one sentence that says so.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace report {

struct Missing {
  bool hung = false;         // the window does not answer, and was asked for nothing
  bool noText = false;       // neither a text at the point nor one in the control
  bool outOfReach = false;   // its program runs as administrator, and this one does not
  std::size_t whole = 0;     // characters of a text of which only the start was read; else 0
  std::size_t shown = 0;     // those that were read
  bool listOmitted = false;  // items beyond the maximum
};

// Whether the text of a control's list holds more than line ends and marks.
bool HoldsText(std::wstring_view list);

// Empty when nothing is missing. Of several things that are, the sentence names the gravest. When a
// setting changes it, the sentence names that setting.
std::wstring RemarkText(const Missing& missing);

}  // namespace report
