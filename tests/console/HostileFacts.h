// Facts whose every text is one that no writer expects.
#pragma once

#include <string>
#include <vector>

#include "console/Facts.h"

namespace console {

std::vector<std::wstring> HostileTexts();

Facts FactsWith(const std::wstring& text);

}  // namespace console
