// A reading as one JSON object: docs/JSON.md.
#pragma once

#include <string>

#include "console/Facts.h"

namespace console {

// In UTF-8, without a line end.
std::string JsonReport(const Facts& facts);

}  // namespace console
