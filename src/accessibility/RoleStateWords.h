// The Japanese words for the roles and states of accessible objects.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace MyAccessible {

// The name of a role that is given as its decimal number; empty for a role that has no name here,
// and for a role that is given as another text.
std::wstring RoleWord(std::wstring_view role);

// The sentences of the bits that are set (STATE_SYSTEM_...), with nothing between them.
std::wstring StateWords(std::uint32_t state);

}  // namespace MyAccessible
