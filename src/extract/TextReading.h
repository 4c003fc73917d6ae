// A text, and the method that read it.
#pragma once

#include <string>

namespace extract {

struct TextReading {
  std::wstring text;
  std::wstring method;  // "WM_GETTEXT", "Accessible", …; may be empty
};

}  // namespace extract
