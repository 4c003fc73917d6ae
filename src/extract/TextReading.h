// A text, and the method that read it.
#pragma once

#include <cstddef>
#include <string>

namespace extract {

struct TextReading {
  std::wstring text;
  std::wstring method;       // "WM_GETTEXT", "Accessible", …; may be empty
  std::size_t whole = 0;     // characters of the text of which this is only the start; else 0
  bool restOmitted = false;  // as many items as the settings allow, and there are more
};

}  // namespace extract
