// The value of a VARIANT as a number or as a text. Objects are not converted: that would call into
// their program again.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <cstdint>
#include <optional>
#include <string>

namespace platform {

// The value converted to VT_I4; nothing when it is empty, an object or cannot be converted.
std::optional<std::int32_t> NumberIn(const VARIANT& value);

// The value converted to VT_BSTR, embedded zero characters included; empty when it is empty, an
// object or cannot be converted.
std::wstring TextIn(const VARIANT& value);

}  // namespace platform
