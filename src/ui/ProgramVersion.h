// The program's version, from its version resource.
#pragma once

#include <cstdint>
#include <string>

namespace ui {

// major "." minor followed directly by revision: 1, 2, 3 gives "1.23". Odd, and stays:
// docs/ODDITIES.md.
std::wstring VersionTextOf(std::uint32_t major, std::uint32_t minor, std::uint32_t revision);

// The version text of the running program; "0.00" when it has no version resource.
std::wstring ProgramVersionText();

}  // namespace ui
