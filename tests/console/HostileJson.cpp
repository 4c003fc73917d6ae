// Writes one line of JSON for each hostile text, for a parser that is not ours. The text itself is
// the line before, as the hexadecimal numbers of its units.
#include <cstdio>

#include "HostileFacts.h"
#include "console/JsonReport.h"

int main() {
  for (const std::wstring& text : console::HostileTexts()) {
    for (const wchar_t unit : text) std::printf("%04x", static_cast<unsigned>(unit));
    std::printf("\n%s\n", console::JsonReport(console::FactsWith(text)).c_str());
  }
}
