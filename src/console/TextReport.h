// What a person would want to paste of a reading.
#pragma once

#include <string>

#include "console/Facts.h"

namespace console {

// The rows of the list, cells separated by TAB, or, without a row, the text. Every line ends with
// CR LF. Of descendants each has a line with its class and handle above.
std::wstring TextReport(const Facts& facts);

// The rows as comma-separated values; without a row the text as one cell.
std::wstring CsvReport(const Facts& facts);

}  // namespace console
