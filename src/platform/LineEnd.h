// How lines end in every text of this program.
#pragma once

#include <string_view>

namespace platform {

constexpr std::wstring_view kCrLf = L"\r\n";

}  // namespace platform
